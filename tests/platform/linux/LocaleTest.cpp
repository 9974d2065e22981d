#include "tessaly/platform/Locale.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <optional>
#include <string>

#include "tessaly/platform/Core.h"
#include "tests/support/Print.h"

namespace tessaly::platform {
namespace {

/// The environment's locale, by the test's choice; what stood there before comes back.
class LinuxLocaleTest : public testing::Test {
 protected:
  LinuxLocaleTest() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LC_NUMERIC", "LANG"}) {
      const char* value = std::getenv(name);
      before_[name] = value != nullptr ? std::optional<std::string>(value) : std::nullopt;
      unsetenv(name);
    }
  }
  ~LinuxLocaleTest() override {
    for (const auto& [name, value] : before_) {
      if (value) {
        setenv(name.c_str(), value->c_str(), 1);
      } else {
        unsetenv(name.c_str());
      }
    }
  }

  static Long lcidOf(const char* locale) {
    setenv("LC_ALL", locale, 1);
    return core().locale->GetUserDefaultLCID();
  }
  static std::string separatorOf(const char* locale) {
    setenv("LC_ALL", locale, 1);
    return tests::shown(core().locale->decimalSeparator());
  }

 private:
  std::map<std::string, std::optional<std::string>> before_;
};

TEST_F(LinuxLocaleTest, HasTheNumbersOfWindows) {
  const std::pair<const char*, Long> rows[] = {{"fr_FR.UTF-8", 1036},  {"fr_CA.UTF-8", 3084},
                                               {"de_DE@euro", 1031},   {"de_AT.ISO-8859-1", 3079},
                                               {"en_GB", 2057},        {"en_US.utf8", 1033},
                                               {"es_ES.UTF-8", 3082},  {"pl_PL.UTF-8", 1045},
                                               {"ru_RU.KOI8-R", 1049}, {"el_GR.UTF-8", 1032},
                                               {"ja_JP.eucJP", 1041},  {"zh_CN.GB18030", 2052},
                                               {"zh_TW.Big5", 1028},   {"pt_BR.UTF-8", 1046},
                                               {"ar_SA.UTF-8", 1025},  {"fr", 1036},
                                               {"sr_RS.UTF-8", 10266}, {"sr_RS.UTF-8@latin", 9242},
                                               {"uz_UZ.UTF-8", 1091},  {"uz_UZ.UTF-8@cyrillic", 2115}};
  for (const auto& [locale, lcid] : rows) EXPECT_EQ(lcidOf(locale), lcid) << locale;
}

TEST_F(LinuxLocaleTest, TakesNoChoiceForTheEnglishOfTheUnitedStates) {
  for (const char* locale : {"C", "POSIX", "C.UTF-8", ""}) EXPECT_EQ(lcidOf(locale), 1033) << locale;
}

TEST_F(LinuxLocaleTest, AsksTheVariablesInTheirOrder) {
  setenv("LANG", "de_DE.UTF-8", 1);
  EXPECT_EQ(core().locale->GetUserDefaultLCID(), 1031);
  setenv("LC_NUMERIC", "en_US.UTF-8", 1);
  EXPECT_EQ(core().locale->GetUserDefaultLCID(), 1031);
  EXPECT_EQ(tests::shown(core().locale->decimalSeparator()), ".");
  setenv("LC_MESSAGES", "fr_FR.UTF-8", 1);
  EXPECT_EQ(core().locale->GetUserDefaultLCID(), 1036);
  setenv("LC_ALL", "ja_JP.UTF-8", 1);
  EXPECT_EQ(core().locale->GetUserDefaultLCID(), 1041);
  setenv("LC_ALL", "C", 1);
  EXPECT_EQ(core().locale->GetUserDefaultLCID(), 1033);
}

TEST_F(LinuxLocaleTest, HasTheUsersDecimalSeparator) {
  const std::pair<const char*, const char*> rows[] = {
      {"C", "."}, {"en_US.UTF-8", "."}, {"de_DE.UTF-8", ","}, {"fr_FR.UTF-8", ","}, {"ja_JP.UTF-8", "."}};
  for (const auto& [locale, separator] : rows) EXPECT_EQ(separatorOf(locale), separator) << locale;
}

/// A date was once stored with a separator for Arabic digits, which the code page does not have.
TEST_F(LinuxLocaleTest, HasTheSeparatorOfLatinDigitsWhereTheUserHasOthers) {
  const std::pair<const char*, const char*> rows[] = {
      {"ar_EG.UTF-8", "."}, {"ar_SA.UTF-8", "."}, {"fa_IR.UTF-8", "."}, {"ur_IN.UTF-8", "."},
      {"hi_IN.UTF-8", "."}, {"ar_LB.UTF-8", ","}, {"ps_AF.UTF-8", ","}};
  for (const auto& [locale, separator] : rows) EXPECT_EQ(separatorOf(locale), separator) << locale;
}

/// As on Windows: what is converted under one page must not be read under another.
TEST_F(LinuxLocaleTest, KeepsTheCodePageThatItFirstHad) {
  const Long before = core().locale->GetACP();
  for (const char* locale : {"ru_RU.UTF-8", "ja_JP.UTF-8", "fr_FR.UTF-8"}) {
    setenv("LC_ALL", locale, 1);
    EXPECT_EQ(core().locale->GetACP(), before) << locale;
  }
}

TEST_F(LinuxLocaleTest, StandsANameThatIsNoLocale) {
  for (const char* locale :
       {"nonsense", "../../etc", "@", ".", "xx_YY", "%s%n", "a_very_long_name_that_no_locale_has_anywhere"}) {
    lcidOf(locale);
    EXPECT_FALSE(separatorOf(locale).empty()) << locale;
  }
}

}  // namespace
}  // namespace tessaly::platform
