// The small parts: what is shown, what is looked for, how values read.

#include <gtest/gtest.h>

#include "tests/support/Print.h"
#include "tools/support/Visible.h"
#include "tools/tessaly-reg/Pattern.h"
#include "tools/tessaly-reg/ValueText.h"

namespace tessaly::reg {
namespace {

using namespace std::string_literals;
using tests::shown;

TEST(RegVisibleText, ShowsWhatATerminalWouldObey) {
  const std::pair<String, std::string> rows[] = {
      {u"plain \xE9 \x3042 \xD83D\xDE00", "plain \xC3\xA9 \xE3\x81\x82 \xF0\x9F\x98\x80"},
      {u"\0\x1B\x7F\x80\x9F"s, "\\u0000\\u001B\\u007F\\u0080\\u009F"},
      {u"\t\r\n", "\\u0009\\u000D\\u000A"},
      {u"\x202E\x2066\x200F\x061C\x2028\xFEFF", "\\u202E\\u2066\\u200F\\u061C\\u2028\\uFEFF"},
      {u"\xAD\x200B\x200D\x2060\x2064\xFFF9", "\\u00AD\\u200B\\u200D\\u2060\\u2064\\uFFF9"},
      {u"\xDB40\xDC41 \x2010", "\\uDB40\\uDC41 \xE2\x80\x90"},
      {u"\xD83Dx\xDE00", "\\uD83Dx\\uDE00"},
      {u"", ""}};
  for (const auto& [text, expected] : rows) EXPECT_EQ(tools::visible(text), expected);
  EXPECT_EQ(tools::visible("a\x1b\xFF"), "a\\u001B\xEF\xBF\xBD");
}

TEST(RegVisibleText, KnowsWhatIsHidden) {
  for (const char32_t c :
       {0xADU, 0x61CU, 0x200BU, 0x200FU, 0x2028U, 0x202EU, 0x2060U, 0x2069U, 0xFEFFU, 0xE0000U, 0xE007FU})
    EXPECT_TRUE(tools::isHidden(c)) << std::uint32_t{c};
  for (const char32_t c :
       {0x20U, 0xACU, 0xAEU, 0x200AU, 0x2010U, 0x2027U, 0x202FU, 0x2070U, 0x1F600U, 0xE0080U})
    EXPECT_FALSE(tools::isHidden(c)) << std::uint32_t{c};
}

TEST(RegVisibleText, IsBoundedInMessages) {
  EXPECT_EQ(tools::inQuotes(u"a\x1B"), "\"a\\u001B\"");
  EXPECT_EQ(tools::inQuotes(String(1000, u'x')), '"' + std::string(80, 'x') + "…\"");
}

TEST(RegPattern, OccursAnywhereInAnyCase) {
  const std::tuple<String, String, bool> rows[] = {
      {u"b", u"aBc", true},      {u"", u"", true},           {u"x", u"", false},
      {u"*", u"", true},         {u"a*c", u"xAbbbCx", true}, {u"a*c", u"cba", false},
      {u"a?c", u"xabcx", true},  {u"a?c", u"ac", false},     {u"\xE9", u"\xC9t\xC9", true},
      {u"a*a", u"a", false},     {u"**b", u"b", true},       {u"?", u"", false},
      {u"ab*ab", u"aab", false}, {u"ab*ab", u"aabab", true}};
  for (const auto& [pattern, text, isIn] : rows)
    EXPECT_EQ(Pattern(pattern).isIn(text), isIn) << shown(pattern) << " in " << shown(text);
}

TEST(RegValueText, ShowsDataThatDoesNotSuitItsTypeAsBytes) {
  EXPECT_EQ(shown(shownData({platform::kNumber, {}, "\x01\x02"})), "0102");
  EXPECT_EQ(shown(shownData({kLongNumber, {}, "\x01\x02\x03\x04"})), "01020304");
  EXPECT_EQ(shown(shownData({kBigEndianNumber, {}, ""})), "");
}

TEST(RegValueText, ShowsTextsWithAndWithoutTheirNuls) {
  EXPECT_EQ(shown(shownData({platform::kText, u"a\0"s, {}})), "a");
  EXPECT_EQ(shown(shownData({platform::kText, u"a", {}})), "a");
  EXPECT_EQ(shown(shownData({platform::kTexts, u"a\0b\0\0"s, {}})), "a\\0b");
  EXPECT_EQ(shown(shownData({platform::kTexts, u"a\0b"s, {}})), "a\\0b");
  EXPECT_EQ(shown(shownData({platform::kTexts, u"", {}})), "");
}

TEST(RegValueText, KnowsTypesByNameAndNumber) {
  EXPECT_EQ(typeNamed(u"reg_sz"), platform::kText);
  EXPECT_EQ(typeNamed(u"0x4D"), 0x4DU);
  EXPECT_EQ(typeNamed(u"11"), kLongNumber);
  for (const char16_t* word : {u"", u"SZ", u"-1", u"0x", u"1 ", u"0x100000000"})
    EXPECT_EQ(typeNamed(word), std::nullopt) << shown(word);
  EXPECT_EQ(shown(typeName(kLongNumber)), "REG_QWORD");
  EXPECT_EQ(shown(typeName(0x4D)), "0x4d");
}

}  // namespace
}  // namespace tessaly::reg
