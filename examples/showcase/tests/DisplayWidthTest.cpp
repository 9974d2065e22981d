#include "examples/showcase/DisplayWidth.h"

#include <gtest/gtest.h>

namespace showcase {
namespace {

TEST(DisplayWidth, LettersOfEuropeTakeOneColumn) {
  EXPECT_EQ(displayWidth(u""), 0);
  EXPECT_EQ(displayWidth(u"Cancel"), 6);
  EXPECT_EQ(displayWidth(u"Ελληνικά"), 8);
  EXPECT_EQ(displayWidth(u"Русский"), 7);
}

TEST(DisplayWidth, EastAsianCharactersTakeTwo) {
  EXPECT_EQ(displayWidth(u"日本語"), 6);
  EXPECT_EQ(displayWidth(u"キャンセル(C)"), 13);
  EXPECT_EQ(displayWidth(u"한국어"), 6);
  EXPECT_EQ(displayWidth(u"，Ａ"), 4);
}

TEST(DisplayWidth, HalfwidthCharactersTakeOne) { EXPECT_EQ(displayWidth(u"ｷｬﾝｾﾙ"), 5); }

TEST(DisplayWidth, CombiningMarksTakeNone) {
  EXPECT_EQ(displayWidth(u"e\u0301"), 1);
  EXPECT_EQ(displayWidth(u"\u0645\u064E"), 1);
  EXPECT_EQ(displayWidth(u"か\u3099"), 2);
}

TEST(DisplayWidth, FormatCharactersTakeNone) {
  EXPECT_EQ(displayWidth(u"\u200E\u200Fab\u2067c\u2069"), 3);
  EXPECT_EQ(displayWidth(u"\uFEFFa\u200B"), 1);
}

TEST(DisplayWidth, ASoftHyphenTakesOneAsInTerminals) { EXPECT_EQ(displayWidth(u"\u00AD"), 1); }

TEST(DisplayWidth, AKoreanSyllableInPartsTakesTwo) { EXPECT_EQ(displayWidth(u"\u1112\u1161\u11AB"), 2); }

TEST(DisplayWidth, CharactersBeyondTheFirstPlaneCountOnce) {
  EXPECT_EQ(displayWidth(u"\U00020000"), 2);
  EXPECT_EQ(displayWidth(u"\U0001D400"), 1);
  EXPECT_EQ(displayWidth(u"\U000E0101"), 0);
}

}  // namespace
}  // namespace showcase
