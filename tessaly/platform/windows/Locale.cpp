#include "tessaly/platform/Locale.h"

#include <windows.h>

#include <array>

#include "tessaly/base/Text.h"
#include "tessaly/platform/Bodies.h"

namespace tessaly::platform {
namespace {

class WindowsLocale final : public Locale {
 public:
  Long GetUserDefaultLCID() override { return static_cast<Long>(::GetUserDefaultLCID()); }

  String decimalSeparator() override {
    std::array<wchar_t, 8> text{};
    const int length =
        GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, text.data(), static_cast<int>(text.size()));
    return length > 1 ? fromWide(text.data()) : u".";
  }
};

}  // namespace

Locale& ownLocale() {
  static WindowsLocale locale;
  return locale;
}

}  // namespace tessaly::platform
