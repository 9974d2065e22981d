// What a bad language file leaves behind: a foreign one is rejected, a broken one is not.

#include <gtest/gtest.h>

#include <algorithm>

#include "tessaly/localisation/CResources.h"
#include "tests/support/CResourcesPeer.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Print.h"

namespace tessaly {

namespace {

using tests::document;
using tests::general;
using tests::shown;
using tests::text;

class LanguageFileFailuresTest : public testing::Test {
 protected:
  LanguageFileFailuresTest() {
    resources_.applicationGUID(u"G");
    folder_.put(u"before.xml", document(general("Before", 1031) + text(1, "before") + kFonts));
    read(u"before.xml");
  }

  Boolean read(std::u16string_view name, Boolean headerOnly = False) {
    return CResourcesPeer::load(resources_, tests::LanguageFolder::pathOf(name), headerOnly);
  }

  /// Whether a full read of a document is rejected.
  bool rejected(std::string bytes) {
    folder_.put(u"file.xml", std::move(bytes));
    return read(u"file.xml");
  }

  std::string res(Long n) const { return shown(resources_.res(n)); }
  std::string header() const { return CResourcesPeer::header(resources_); }
  std::string gridFont() const {
    return shown(resources_.gridFontName()) + std::to_string(resources_.gridFontSize());
  }

  static inline const std::string kFonts =
      "<FONTS><GRIDFONTNAME>T</GRIDFONTNAME><GRIDFONTSIZE>9</GRIDFONTSIZE></FONTS>";
  tests::LanguageFolder folder_;
  CResources resources_;
};

const std::string kBuiltInText = "&Cancel";

TEST_F(LanguageFileFailuresTest, StartFromALanguageInForce) {
  EXPECT_EQ(res(0), "before");
  EXPECT_EQ(gridFont(), "T9");
  EXPECT_EQ(header(), "3,G,Before,1031");
}

TEST_F(LanguageFileFailuresTest, AMissingFileIsNotRejectedAndLeavesTheBuiltInTexts) {
  EXPECT_FALSE(read(u"missing.xml"));
  EXPECT_EQ(res(0), kBuiltInText);
  EXPECT_EQ(header(), "3,,,0");
  EXPECT_EQ(gridFont(), "0");
}

TEST_F(LanguageFileFailuresTest, AFileThatIsNotWellFormedIsNotRejectedAndLeavesTheBuiltInTexts) {
  EXPECT_FALSE(rejected("<L>" + general("F", 1036) + text(1, "x")));
  EXPECT_EQ(res(0), kBuiltInText);
  EXPECT_EQ(header(), "3,,,0");
  EXPECT_EQ(gridFont(), "0");
}

TEST_F(LanguageFileFailuresTest, AFileOfAnotherApplicationIsRejected) {
  EXPECT_TRUE(rejected(document(general("F", 1036, "other") + text(1, "x") + kFonts)));
  EXPECT_EQ(res(0), kBuiltInText);
  EXPECT_EQ(header(), "3,other,F,1036");
  EXPECT_EQ(gridFont(), "0");
}

TEST_F(LanguageFileFailuresTest, AFileWithoutAGuidIsRejected) {
  EXPECT_TRUE(rejected(document("<GENERAL><LANG>F</LANG><LANGID>1036</LANGID></GENERAL>" + text(1, "x"))));
  EXPECT_EQ(res(0), kBuiltInText);
  EXPECT_EQ(header(), "3,,F,1036");
}

TEST_F(LanguageFileFailuresTest, AFileWithoutALanguageNameIsRejected) {
  EXPECT_TRUE(rejected(document("<GENERAL><GUID>G</GUID><LANGID>1036</LANGID></GENERAL>" + text(1, "x"))));
  EXPECT_TRUE(rejected(document(general("", 1036) + text(1, "x"))));
  EXPECT_TRUE(rejected(document(general(" ", 1036) + text(1, "x"))));
  EXPECT_EQ(res(0), kBuiltInText);
  EXPECT_EQ(header(), "3,G,,1036");
}

TEST_F(LanguageFileFailuresTest, AFileWithoutALanguageNumberIsRejected) {
  EXPECT_TRUE(rejected(document("<GENERAL><GUID>G</GUID><LANG>F</LANG></GENERAL>" + text(1, "x"))));
  EXPECT_TRUE(rejected(document(general("F", 0) + text(1, "x"))));
  EXPECT_EQ(res(0), kBuiltInText);
  EXPECT_EQ(header(), "3,G,F,0");
}

TEST_F(LanguageFileFailuresTest, AFileWithoutAHeaderIsRejected) {
  EXPECT_TRUE(rejected(document(text(1, "x"))));
  EXPECT_TRUE(rejected("<L/>"));
  EXPECT_EQ(res(0), kBuiltInText);
}

TEST_F(LanguageFileFailuresTest, ABadNumberInTheHeaderEndsTheReadAndKeepsTheFieldsBefore) {
  EXPECT_FALSE(rejected(
      document("<GENERAL><GUID>G</GUID><LANG>F</LANG><LANGID>many</LANGID><VERSION>8</VERSION></GENERAL>" +
               text(1, "x"))));
  EXPECT_EQ(res(0), kBuiltInText);
  EXPECT_EQ(header(), "3,G,F,0");
  EXPECT_FALSE(
      rejected(document("<GENERAL><LANGID>1036</LANGID><VERSION>1.2.3</VERSION><GUID>G</GUID></GENERAL>")));
  EXPECT_EQ(header(), "3,,,1036");
}

TEST_F(LanguageFileFailuresTest, AHeaderNumberThatIsEmptyOrBeyondThirtyTwoBitsIsBad) {
  for (const char* number : {"", " ", "2147483648", "-2147483649", "1e10", "1e999", "x", "1 2", "0x40C"}) {
    EXPECT_FALSE(rejected(document("<GENERAL><GUID>G</GUID><LANG>F</LANG><LANGID>" + std::string(number) +
                                   "</LANGID></GENERAL>" + text(1, "x"))));
    EXPECT_EQ(header(), "3,G,F,0") << number;
    EXPECT_EQ(res(0), kBuiltInText) << number;
  }
}

TEST_F(LanguageFileFailuresTest, ABadNumberInATextEndsTheReadAndKeepsTheTextsBefore) {
  EXPECT_FALSE(rejected(document(general("F", 1036) + kFonts + text(1, "un") + text(2, "deux") +
                                 "<STRING><ID>three</ID><VALUE>trois</VALUE></STRING>" + text(4, "quatre"))));
  EXPECT_EQ(res(0), "un");
  EXPECT_EQ(res(1), "deux");
  EXPECT_EQ(res(2), shown(showcaseStrings[2]));
  EXPECT_EQ(res(3), shown(showcaseStrings[3]));
  EXPECT_EQ(gridFont(), "T9");
}

TEST_F(LanguageFileFailuresTest, ABadFontSizeEndsTheReadAndKeepsTheFontsBefore) {
  EXPECT_FALSE(rejected(document(general("F", 1036) + text(1, "un") +
                                 "<FONTS><GRIDFONTNAME>A</GRIDFONTNAME><GRIDFONTSIZE>large</GRIDFONTSIZE>"
                                 "<MAILFONTNAME>M</MAILFONTNAME></FONTS>" +
                                 text(2, "deux"))));
  EXPECT_EQ(res(0), "un");
  EXPECT_EQ(res(1), shown(showcaseStrings[1]));
  EXPECT_EQ(gridFont(), "A0");
  EXPECT_EQ(resources_.mailFontName(), u"");
}

TEST_F(LanguageFileFailuresTest, WithoutXmlAFullReadLeavesTheBuiltInTextsAndTheFieldsAsTheyWere) {
  folder_.put(u"file.xml", document(general("F", 1036) + text(1, "x")));
  folder_.xml.failCreate();
  EXPECT_FALSE(read(u"file.xml"));
  EXPECT_EQ(res(0), kBuiltInText);
  EXPECT_EQ(header(), "3,G,Before,1031");
  EXPECT_EQ(gridFont(), "T9");
}

TEST_F(LanguageFileFailuresTest, WithoutXmlAHeaderReadTouchesNothing) {
  folder_.xml.failCreate();
  EXPECT_FALSE(read(u"before.xml", True));
  EXPECT_EQ(res(0), "before");
  EXPECT_EQ(header(), "3,G,Before,1031");
  EXPECT_EQ(gridFont(), "T9");
}

TEST_F(LanguageFileFailuresTest, AHeaderReadTouchesNoTextButClearsTheFonts) {
  folder_.put(u"file.xml", document(general("F", 1036) + text(1, "x") + kFonts));
  EXPECT_FALSE(read(u"file.xml", True));
  EXPECT_EQ(res(0), "before");
  EXPECT_EQ(header(), "3,G,F,1036");
  EXPECT_EQ(gridFont(), "0");
}

TEST_F(LanguageFileFailuresTest, AHeaderReadEndsAListAtItsHeaderButNotTheListsAround) {
  folder_.put(u"file.xml", document("<a>" + general("inner", 5) + general("skipped", 6) + "</a>" +
                                    general("outer", 7) + general("skipped", 8)));
  EXPECT_FALSE(read(u"file.xml", True));
  EXPECT_EQ(header(), "3,G,outer,7");
}

TEST_F(LanguageFileFailuresTest, AHeaderReadDoesNotLookBelowTheHeader) {
  folder_.put(u"file.xml", document("<GENERAL><GUID>G</GUID><LANG>F</LANG><LANGID>7</LANGID>" +
                                    general("below", 8) + "</GENERAL>"));
  EXPECT_FALSE(read(u"file.xml", True));
  EXPECT_EQ(header(), "3,G,F,7");
}

TEST_F(LanguageFileFailuresTest, TheVersionIsNeverCleared) {
  EXPECT_FALSE(rejected(document("<GENERAL><GUID>G</GUID><LANG>F</LANG><LANGID>1036</LANGID></GENERAL>")));
  EXPECT_EQ(header(), "3,G,F,1036");
}

TEST_F(LanguageFileFailuresTest, TheDocumentIsReleasedOnEveryPath) {
  rejected(document(general("F", 1036)));
  rejected(document(general("F", 1036, "other")));
  rejected("<broken");
  rejected(document("<GENERAL><LANGID>x</LANGID></GENERAL>"));
  const auto& calls = folder_.xml.calls();
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "createDocument"),
            std::count(calls.begin(), calls.end(), "release"));
}

}  // namespace
}  // namespace tessaly
