#include "tessaly/platform/Locale.h"

#include <unicode/dcfmtsym.h>
#include <unicode/locid.h>

#include <cstdlib>
#include <mutex>
#include <string>

#include "tessaly/platform/Bodies.h"

namespace tessaly::platform {
namespace {

constexpr Long kEnglishUnitedStates = 1033;

/// The locale that the environment names for a category, without its encoding; empty where the user has
/// chosen none.
std::string chosenLocale(const char* category) {
  for (const char* variable : {"LC_ALL", category, "LANG"}) {
    const char* value = std::getenv(variable);
    if (value == nullptr || *value == '\0') continue;
    std::string name(value);
    const auto encoding = name.find('.');
    if (encoding != std::string::npos) name.erase(encoding, name.find('@', encoding) - encoding);
    return name == "C" || name == "POSIX" ? std::string() : name;
  }
  return {};
}

/// The locale as ICU has it, with the country that a language alone most likely means.
icu::Locale icuLocale(const std::string& name) {
  icu::Locale locale = icu::Locale::createCanonical(name.c_str());
  if (*locale.getCountry() != '\0') return locale;
  UErrorCode error = U_ZERO_ERROR;
  locale.addLikelySubtags(error);
  return {locale.getLanguage(), locale.getCountry()};
}

class LinuxLocale final : public Locale {
 public:
  Long GetUserDefaultLCID() override {
    const std::string name = chosenLocale("LC_MESSAGES");
    return name.empty() ? kEnglishUnitedStates : static_cast<Long>(icuLocale(name).getLCID());
  }

  String decimalSeparator() override {
    const std::string name = chosenLocale("LC_NUMERIC");
    if (name.empty()) return u".";
    // ICU takes some 100 µs to look it up, and a form asks for each of its numbers.
    const std::lock_guard lock(mutex_);
    if (name != knownName_) {
      UErrorCode error = U_ZERO_ERROR;
      const icu::DecimalFormatSymbols symbols(icuLocale(name), error);
      const auto text = symbols.getSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol);
      knownSeparator_ =
          U_SUCCESS(error) ? String(text.getBuffer(), static_cast<std::size_t>(text.length())) : u".";
      knownName_ = name;
    }
    return knownSeparator_;
  }

 private:
  std::mutex mutex_;
  std::string knownName_;
  String knownSeparator_;
};

}  // namespace

Locale& ownLocale() {
  static LinuxLocale locale;
  return locale;
}

}  // namespace tessaly::platform
