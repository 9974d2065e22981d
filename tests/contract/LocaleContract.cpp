// What a body of the area Locale must do, whichever it is; what it must do with code pages stands beside.

#include "tessaly/platform/Locale.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tests/support/Platform.h"
#include "tests/support/Print.h"
#include "tests/support/World.h"

namespace tessaly::tests {
namespace {

using namespace std::string_literals;

class LocaleContract : public testing::TestWithParam<Body> {
 protected:
  platform::Locale& locale() { return GetParam() == Body::Own ? *platform::core().locale : fake_; }
  std::string upper(std::u16string_view text) { return shown(locale().CharUpperW(text)); }

 private:
  platform::fake::Locale fake_{1036, u","};
};

INSTANTIATE_TEST_SUITE_P(Body, LocaleContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(LocaleContract, GivesALanguageASeparatorAndACodePageThatStay) {
  EXPECT_NE(locale().GetUserDefaultLCID(), 0);
  EXPECT_EQ(locale().GetUserDefaultLCID(), locale().GetUserDefaultLCID());
  EXPECT_FALSE(locale().decimalSeparator().empty());
  EXPECT_EQ(locale().decimalSeparator(), locale().decimalSeparator());
  EXPECT_GT(locale().GetACP(), 0);
  EXPECT_EQ(locale().GetACP(), locale().GetACP());
}

TEST_P(LocaleContract, UpperCasesTheLettersOfEveryScript) {
  EXPECT_EQ(upper(u"abc XYZ 09 @[`{"), "ABC XYZ 09 @[`{");
  EXPECT_EQ(upper(u"\xE0\xE9\xF6\xF8\xFE\xFF"), "ÀÉÖØÞŸ");
  EXPECT_EQ(upper(u"łšžőğæœ"), "ŁŠŽŐĞÆŒ");
  EXPECT_EQ(upper(u"ελλάδα σ"), "ΕΛΛΆΔΑ Σ");
  EXPECT_EQ(upper(u"привет ёђѓ"), "ПРИВЕТ ЁЂЃ");
  EXPECT_EQ(upper(u"հայ ⴀⴁ ⰰ ⲁ ꙁ ꜣ"), "ՀԱՅ ႠႡ Ⰰ Ⲁ Ꙁ Ꜣ");
  EXPECT_EQ(upper(u"ａｂｃ ⓐⓩ ⅰⅻ ᾀᾳ"), "ＡＢＣ ⒶⓏ ⅠⅫ ᾈᾼ");
}

TEST_P(LocaleContract, LeavesWhatIsNoSmallLetter) {
  for (const char16_t* text : {u"", u"ÀÉŸ", u"שלום سلام", u"日本語 アあ한국어", u"€₫№"})
    EXPECT_EQ(upper(text), shown(text));
  EXPECT_EQ(locale().CharUpperW(u"a\0b"s), u"A\0B"s);
}

TEST_P(LocaleContract, LeavesALetterThatWouldNotComeBackAsItWas) {
  for (const char16_t* text : {u"ß", u"ı", u"µ", u"ſ", u"ς", u"ϐ", u"ǅ", u"ẛ", u"\x0345", u"ᲀ"})
    EXPECT_EQ(upper(text), shown(text));
  EXPECT_EQ(upper(u"straße"), "STRAßE");
}

TEST_P(LocaleContract, UpperCasesByNoLanguagesRules) { EXPECT_EQ(upper(u"iı"), "Iı"); }

TEST_P(LocaleContract, TakesTheHalvesOfASurrogatePairByThemselves) {
  for (const String& text : {u"\xD801\xDC28"s, u"\xDC28\xD801"s, u"\xD801"s})
    EXPECT_EQ(locale().CharUpperW(text), text);
}

/// So names that are stored stay the same names when the system is renewed.
TEST_P(LocaleContract, LeavesLettersThatCameAfterUnicode51) {
  if (underWine()) GTEST_SKIP() << "Wine has them of a later Unicode";
  for (const char16_t* text : {u"\x10D0", u"\xAB70", u"\x13F8", u"\x0252", u"\x0525", u"\xA791"})
    EXPECT_EQ(upper(text), shown(text));
}

TEST_P(LocaleContract, UpperCaseOfUpperCaseIsItself) {
  for (unsigned unit = 0; unit < 0x10000; ++unit) {
    const String once = locale().CharUpperW(String(1, static_cast<char16_t>(unit)));
    ASSERT_EQ(once.size(), 1U);
    ASSERT_EQ(locale().CharUpperW(once), once) << std::hex << unit;
  }
}

TEST(FakeLocale, GivesWhatItWasTold) {
  platform::fake::Locale french(1036, u",");
  EXPECT_EQ(french.GetUserDefaultLCID(), 1036);
  EXPECT_EQ(shown(french.decimalSeparator()), ",");
  EXPECT_EQ(french.GetACP(), 1252);
  platform::fake::Locale japanese(1041, u".", 932);
  EXPECT_EQ(japanese.GetUserDefaultLCID(), 1041);
  EXPECT_EQ(japanese.GetACP(), 932);
}

/// Run once for each of several locales, with what is expected of each in the environment beside it.
TEST(OwnLocale, LocaleOfTheEnvironment) {
  const char* lcid = std::getenv("TESSALY_EXPECTED_LCID");
  const char* separator = std::getenv("TESSALY_EXPECTED_SEPARATOR");
  const char* codePage = std::getenv("TESSALY_EXPECTED_CODE_PAGE");
  if (lcid == nullptr || separator == nullptr || codePage == nullptr)
    GTEST_SKIP() << "runs where the environment tells what to expect";
  EXPECT_EQ(std::to_string(platform::core().locale->GetUserDefaultLCID()), lcid);
  EXPECT_EQ(shown(platform::core().locale->decimalSeparator()),
            separator == std::string("comma") ? "," : ".");
  EXPECT_EQ(std::to_string(platform::core().locale->GetACP()), codePage);
}

}  // namespace
}  // namespace tessaly::tests
