// The table of texts and the two look-ups.

#include <gtest/gtest.h>

#include <limits>

#include "tessaly/localisation/CResources.h"
#include "tests/support/Errors.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Print.h"

namespace tessaly {
namespace {

using tests::errorOf;
using tests::shown;

/// A table in which slot 0 has the text of the test's own.
BuiltInStrings tableOf(std::u16string_view first) {
  BuiltInStrings table = showcaseStrings;
  table[0] = first;
  return table;
}

class CatalogueTest : public testing::Test {
 protected:
  /// Slot 0 with two arguments, where its built-in text is as told.
  static std::string withArguments(std::u16string_view text, const Variant& first, const Variant& second) {
    const BuiltInStrings table = tableOf(text);
    CResources resources(table);
    resources.lang(2057);
    return shown(resources.resWithArg(0, first, second));
  }

  tests::LanguageFolder folder_;
};

TEST_F(CatalogueTest, GivesAnEmptyStringForEverySlotOfANewObject) {
  const CResources resources;
  for (Long n = 0; n < 175; ++n) EXPECT_EQ(resources.res(n), u"") << n;
  EXPECT_EQ(resources.resWithArg(13, 3, 9), u"");
}

TEST_F(CatalogueTest, IsNewUntilALanguageIsChosen) {
  const CResources resources;
  EXPECT_EQ(resources.lang(), 0);
  EXPECT_EQ(resources.langName(), u"");
  EXPECT_EQ(resources.reportFontName(), u"");
  EXPECT_EQ(resources.gridFontName(), u"");
  EXPECT_EQ(resources.mailFontName(), u"");
  EXPECT_EQ(resources.gridFontSize(), 0);
  EXPECT_TRUE(folder_.xml.calls().empty());
}

TEST_F(CatalogueTest, GivesEachBuiltInTextByItsSlot) {
  CResources resources;
  resources.lang(2057);
  for (Long n = 0; n < 175; ++n)
    EXPECT_EQ(resources.res(n), showcaseStrings[static_cast<std::size_t>(n)]) << n;
  EXPECT_EQ(resources.res(0), u"&Cancel");
  EXPECT_EQ(resources.res(12), u"Open");
  EXPECT_EQ(resources.res(13), u"Page %a1 of %a2");
}

TEST_F(CatalogueTest, TakesTheTableOfAHost) { EXPECT_EQ(withArguments(u"Of the host", 1, 2), "Of the host"); }

TEST_F(CatalogueTest, FailsWithErrorNineOutsideItsSlots) {
  CResources resources;
  resources.lang(2057);
  for (const Long n : {-1, 175, 176, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()}) {
    EXPECT_EQ(errorOf([&] { resources.res(n); }), 9) << n;
    EXPECT_EQ(errorOf([&] { resources.resWithArg(n, 1, 2); }), 9) << n;
  }
  EXPECT_EQ(shown(resources.res(0)), "&Cancel");
  EXPECT_EQ(shown(resources.res(174)), shown(showcaseStrings[174]));
}

TEST_F(CatalogueTest, LooksAtTheSlotBeforeTheArguments) {
  const CResources resources;
  const double infinite = std::numeric_limits<double>::infinity();
  EXPECT_EQ(errorOf([&] { resources.resWithArg(175, infinite, 1); }), 9);
  EXPECT_EQ(errorOf([&] { resources.resWithArg(0, infinite, 1); }), 6);
  EXPECT_EQ(errorOf([&] { resources.resWithArg(0, 1, infinite); }), 6);
}

TEST_F(CatalogueTest, FillsPlaceholdersInOrder) {
  EXPECT_EQ(withArguments(u"Page %a1 of %a2", 3, 9), "Page 3 of 9");
  EXPECT_EQ(withArguments(u"%a2 before %a1", u"x", u"y"), "y before x");
  EXPECT_EQ(withArguments(u"%a1%a2%a1%a2", 1, 2), "1212");
}

TEST_F(CatalogueTest, ReplacesEveryOccurrence) {
  EXPECT_EQ(withArguments(u"%a1 and %a1", u"x", u"y"), "x and x");
  EXPECT_EQ(withArguments(u"%a1%a1%a1", u"%a1", u"y"), "%a1%a1%a1");
  EXPECT_EQ(withArguments(u"%a1", u"", u""), "");
}

TEST_F(CatalogueTest, LeavesATextWithoutPlaceholdersAlone) {
  EXPECT_EQ(withArguments(u"Nothing to fill", u"x", u"y"), "Nothing to fill");
}

TEST_F(CatalogueTest, LetsTheSecondArgumentReachIntoTheFirst) {
  EXPECT_EQ(withArguments(u"%a1", u"%a2", u"X"), "X");
  EXPECT_EQ(withArguments(u"%a1a2", u"%", u"X"), "X");
  EXPECT_EQ(withArguments(u"%a2", u"%a1", u"%a1"), "%a1");
}

TEST_F(CatalogueTest, KnowsNoOtherPercentSequence) {
  EXPECT_EQ(withArguments(u"%A1 %a3 %a %% %1 %", u"x", u"y"), "%A1 %a3 %a %% %1 %");
  EXPECT_EQ(withArguments(u"%a10 %a21", u"x", u"y"), "x0 y1");
  EXPECT_EQ(withArguments(u"%%a1", u"x", u"y"), "%x");
}

TEST_F(CatalogueTest, GivesANumberAndItsTextTheSameForm) {
  EXPECT_EQ(withArguments(u"%a1", 3, 0), withArguments(u"%a1", u"3", 0));
  EXPECT_EQ(withArguments(u"%a1|%a2", std::int16_t{-3}, 2147483647), "-3|2147483647");
  EXPECT_EQ(withArguments(u"%a1|%a2", True, False), "True|False");
  EXPECT_EQ(withArguments(u"%a1|%a2", 2.5, 1e15), "2.5|1E+15");
}

TEST_F(CatalogueTest, WritesFractionsAsTheUserDoes) {
  tests::LanguageFolder french(1036, u",");
  EXPECT_EQ(withArguments(u"%a1|%a2", 2.5, 1.5e-7), "2,5|1,5E-07");
}

TEST_F(CatalogueTest, ShowsStringNumbersBehindTheText) {
  const BuiltInStrings table = tableOf(u"T %a1");
  CResources resources(table);
  resources.lang(2057);
  resources.SetLangOrCountry(-2057);
  EXPECT_EQ(shown(resources.res(0)), "T %a1[1]");
  EXPECT_EQ(shown(resources.res(12)), "Open[13]");
  EXPECT_EQ(shown(resources.res(174)), shown(showcaseStrings[174]) + "[175]");
  EXPECT_EQ(shown(resources.resWithArg(0, 3, 9)), "T 3[1]");
}

TEST_F(CatalogueTest, ShowsStringNumbersOfEmptySlotsAlone) {
  CResources resources;
  resources.SetLangOrCountry(-1);
  EXPECT_EQ(shown(resources.res(12)), "[13]");
  EXPECT_EQ(shown(resources.resWithArg(12, u"x", u"y")), "[13]");
}

TEST_F(CatalogueTest, GivesCopies) {
  CResources resources;
  resources.lang(2057);
  String text = resources.res(0);
  text += u" changed";
  EXPECT_EQ(shown(resources.res(0)), "&Cancel");
}

TEST(BuiltInTable, HasOneHundredAndSeventyFiveTextsOfSoundLength) {
  ASSERT_EQ(showcaseStrings.size(), 175U);
  for (const std::u16string_view text : showcaseStrings) {
    EXPECT_FALSE(text.empty());
    EXPECT_LE(text.size(), 256U);
  }
}

}  // namespace
}  // namespace tessaly
