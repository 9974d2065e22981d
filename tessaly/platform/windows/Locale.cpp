#include "tessaly/platform/Locale.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <climits>
#include <memory>
#include <new>
#include <numeric>

#include "tessaly/base/Text.h"
#include "tessaly/platform/Bodies.h"

namespace tessaly::platform {
namespace {

constexpr UINT kWestern = 1252;

UINT knownPage(Long codePage) {
  const auto page = static_cast<UINT>(codePage);
  return IsValidCodePage(page) != 0 ? page : kWestern;
}

/// A length as the platform counts; what it can't count counts as what can't be held.
int lengthOf(std::size_t size) {
  if (size > INT_MAX / 4) throw std::bad_alloc();
  return static_cast<int>(size);
}

/// The upper case of each unit by itself. A whole text would have its surrogate pairs mapped, which the
/// registry and the file systems leave alone.
using UpperCase = std::array<wchar_t, 0x10000>;

std::unique_ptr<const UpperCase> makeUpperCase() {
  auto units = std::make_unique<UpperCase>();
  std::iota(units->begin(), units->end(), L'\0');
  const auto count = static_cast<int>(units->size());
  LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, units->data(), count, units->data(), count, nullptr,
                nullptr, 0);
  return units;
}

class WindowsLocale final : public Locale {
 public:
  Long GetUserDefaultLCID() override { return static_cast<Long>(::GetUserDefaultLCID()); }

  String decimalSeparator() override {
    std::array<wchar_t, 8> text{};
    const int length =
        GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, text.data(), static_cast<int>(text.size()));
    return length > 1 ? fromWide(text.data()) : u".";
  }

  Long GetACP() override { return static_cast<Long>(::GetACP()); }

  std::string WideCharToMultiByte(Long codePage, std::u16string_view text) override {
    if (text.empty()) return {};
    const UINT page = knownPage(codePage);
    const std::wstring wide = toWide(text);
    const int length = lengthOf(wide.size());
    const int size = ::WideCharToMultiByte(page, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(page, 0, wide.data(), length, result.data(), size, nullptr, nullptr);
    return result;
  }

  String MultiByteToWideChar(Long codePage, std::string_view text) override {
    if (text.empty()) return {};
    const UINT page = knownPage(codePage);
    const int length = lengthOf(text.size());
    std::wstring wide(
        static_cast<std::size_t>(::MultiByteToWideChar(page, 0, text.data(), length, nullptr, 0)), L'\0');
    ::MultiByteToWideChar(page, 0, text.data(), length, wide.data(), lengthOf(wide.size()));
    return fromWide(wide);
  }

  String CharUpperW(std::u16string_view text) override {
    static const auto& units = *makeUpperCase().release();
    String result(text.size(), u'\0');
    std::transform(text.begin(), text.end(), result.begin(),
                   [](char16_t c) { return static_cast<char16_t>(units[c]); });
    return result;
  }
};

}  // namespace

Locale& ownLocale() {
  static WindowsLocale locale;
  return locale;
}

}  // namespace tessaly::platform
