#include "tessaly/platform/Locale.h"

#include <unicode/dcfmtsym.h>
#include <unicode/locid.h>
#include <unicode/numsys.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <string>

#include "tessaly/base/Text.h"
#include "tessaly/platform/AnsiCodePage.h"
#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/linux/CodePage.h"
#include "tessaly/platform/linux/UpperCase.h"

namespace tessaly::platform {
namespace {

constexpr Long kEnglishUnitedStates = 1033;
constexpr Long kUtf8 = 65001;

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

/// The script that a modifier such as @latin asks for; empty where it asks for something else.
std::string scriptOf(const std::string& modifier) {
  if (modifier == "latin") return "Latn";
  if (modifier == "cyrillic") return "Cyrl";
  if (modifier == "devanagari") return "Deva";
  return {};
}

/// The locale as ICU has it.
icu::Locale icuLocale(const std::string& name) {
  const auto at = std::min(name.find('@'), name.size());
  icu::Locale plain = icu::Locale::createCanonical(name.substr(0, at).c_str());
  const std::string script = scriptOf(name.substr(std::min(at + 1, name.size())));
  if (script.empty()) return plain;
  return {(std::string(plain.getLanguage()) + "_" + script + "_" + plain.getCountry()).c_str()};
}

/// Whether a number is of a language in a country and not of a language alone.
bool isSpecific(Long lcid) {
  const Long country = (lcid >> 10) & 0x3F;
  return country != 0 && country < 0x1E;
}

/// ICU has some numbers by script and some without; the country is the one that a language most likely means.
Long lcidOf(const icu::Locale& locale) {
  icu::Locale full = locale;
  UErrorCode error = U_ZERO_ERROR;
  full.addLikelySubtags(error);
  const auto withScript = static_cast<Long>(full.getLCID());
  const auto withoutScript = static_cast<Long>(icu::Locale(full.getLanguage(), full.getCountry()).getLCID());
  return isSpecific(withScript) ? withScript : withoutScript;
}

/// The separator that goes with Latin digits, which all numbers have here; a locale may have digits of its
/// own, and a separator for them.
String separatorOf(const icu::Locale& locale) {
  UErrorCode error = U_ZERO_ERROR;
  const std::unique_ptr<icu::NumberingSystem> latin(
      icu::NumberingSystem::createInstanceByName("latn", error));
  if (U_FAILURE(error)) return {u'.'};
  const icu::DecimalFormatSymbols symbols(locale, *latin, error);
  if (U_FAILURE(error)) return {u'.'};
  const auto text = symbols.getSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol);
  return {text.getBuffer(), static_cast<std::size_t>(text.length())};
}

class LinuxLocale final : public Locale {
 public:
  Long GetUserDefaultLCID() override {
    const std::string name = chosenLocale("LC_MESSAGES");
    return name.empty() ? kEnglishUnitedStates : lcidOf(icuLocale(name));
  }

  String decimalSeparator() override {
    const std::string name = chosenLocale("LC_NUMERIC");
    if (name.empty()) return u".";
    // ICU takes some 100 µs to look it up, and a form asks for each of its numbers.
    const std::lock_guard lock(mutex_);
    if (name != knownName_) {
      knownSeparator_ = separatorOf(icuLocale(name));
      knownName_ = name;
    }
    return knownSeparator_;
  }

  Long GetACP() override {
    static const Long page = ansiCodePage(GetUserDefaultLCID());
    return page;
  }

  std::string WideCharToMultiByte(Long codePage, std::u16string_view text) override {
    return codePage == kUtf8 ? toUtf8(text) : CodePage::of(codePage).bytesOf(text);
  }

  String MultiByteToWideChar(Long codePage, std::string_view text) override {
    return codePage == kUtf8 ? fromUtf8(text) : CodePage::of(codePage).textOf(text);
  }

  String CharUpperW(std::u16string_view text) override { return upperCased(text); }

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
