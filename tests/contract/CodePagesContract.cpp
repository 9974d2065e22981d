// What a body of the area Locale must do with 8-bit text, whichever it is.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/Locale.h"
#include "tessaly/platform/fake/Locale.h"
#include "tests/support/Print.h"
#include "tests/support/World.h"

namespace tessaly::tests {
namespace {

using namespace std::string_literals;

constexpr Long kOneBytePages[] = {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};
constexpr Long kDoubleBytePages[] = {932, 936, 949, 950};
constexpr Long kUtf8 = 65001;

class CodePagesContract : public testing::TestWithParam<Body> {
 protected:
  platform::Locale& locale() { return GetParam() == Body::Own ? *platform::core().locale : fake_; }
  std::string bytes(Long page, std::u16string_view text) { return locale().WideCharToMultiByte(page, text); }
  String wide(Long page, std::string_view text) { return locale().MultiByteToWideChar(page, text); }

 private:
  /// Its own page is none of those asked for.
  platform::fake::Locale fake_{1041, u".", 437};
};

INSTANTIATE_TEST_SUITE_P(Body, CodePagesContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(CodePagesContract, TurnTextOfTheirScriptsBothWays) {
  const struct {
    Long page;
    const char16_t* text;
    const char* bytes;
  } rows[] = {{874, u"สวัสดี €", "\xCA\xC7\xD1\xCA\xB4\xD5 \x80"},
              {932, u"日本語 ｱソ表", "\x93\xFA\x96{\x8C\xEA \xB1\x83\\\x95\\"},
              {932, u"①№ⅰ纊～￥", "\x87\x40\x87\x82\xFA\x40\xFA\x5C\x81\x60\x81\x8F"},
              {936, u"中文 €丂", "\xD6\xD0\xCE\xC4 \x80\x81\x40"},
              {949, u"한국어 갂", "\xC7\xD1\xB1\xB9\xBE\xEE \x81\x41"},
              {950, u"中文 功€", "\xA4\xA4\xA4\xE5 \xA5\\\xA3\xE1"},
              {1250, u"Łódź €",
               "\xA3\xF3"
               "d\x9F \x80"},
              {1251, u"Привет №", "\xCF\xF0\xE8\xE2\xE5\xF2 \xB9"},
              {1252, u"Ça été €Ÿ",
               "\xC7"
               "a \xE9t\xE9 \x80\x9F"},
              {1253, u"Ελλάδα €", "\xC5\xEB\xEB\xDC\xE4\xE1 \x80"},
              {1254, u"ığşİ", "\xFD\xF0\xFE\xDD"},
              {1255, u"שלום ₪", "\xF9\xEC\xE5\xED \xA4"},
              {1256, u"سلام پ", "\xD3\xE1\xC7\xE3 \x81"},
              {1257, u"ąžuolas", "\xE0\xFEuolas"},
              {1258, u"Viê\x0323t ₫", "Vi\xEA\xF2t \xFE"},
              {kUtf8, u"é€日\xD83D\xDE00", "\xC3\xA9\xE2\x82\xAC\xE6\x97\xA5\xF0\x9F\x98\x80"}};
  for (const auto& row : rows) {
    EXPECT_EQ(bytes(row.page, row.text), row.bytes) << row.page;
    EXPECT_EQ(shown(wide(row.page, row.bytes)), shown(row.text)) << row.page;
  }
}

TEST_P(CodePagesContract, HaveAsciiInPlace) {
  std::string ascii;
  for (char c = 0; c < 0x7F; ++c) ascii += c;
  ascii += '\x7F';
  const String text(ascii.begin(), ascii.end());
  for (const Long page :
       {874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258, 65001}) {
    EXPECT_EQ(bytes(page, text), ascii) << page;
    EXPECT_EQ(wide(page, ascii), text) << page;
  }
}

TEST_P(CodePagesContract, KeepEmptyTextAndANulInside) {
  for (const Long page : {1252, 932, 65001}) {
    EXPECT_EQ(bytes(page, u""), "");
    EXPECT_EQ(wide(page, ""), u"");
    EXPECT_EQ(wide(page, bytes(page, u"a\0\xB0\0"s)), u"a\0\xB0\0"s) << page;
  }
}

TEST_P(CodePagesContract, GiveAQuestionMarkForEachUnitThatTheyLack) {
  for (const Long page : {874, 1250, 1251, 1252, 1257}) {
    EXPECT_EQ(bytes(page, u"a\x3042\x4E00z"), "a??z") << page;
    EXPECT_EQ(bytes(page, u"\x05D0"), "?") << page;
  }
  for (const Long page : kDoubleBytePages) EXPECT_EQ(bytes(page, u"a\x05D0\x0E01z"), "a??z") << page;
  EXPECT_EQ(bytes(932, u"한"), "?");
  EXPECT_EQ(bytes(949, u"a丂"), "a?");
}

TEST_P(CodePagesContract, GiveTwoQuestionMarksForASurrogatePairAndOneForAHalf) {
  for (const Long page : {1252, 1251, 874, 932, 936, 949, 950}) {
    EXPECT_EQ(bytes(page, u"a\xD83D\xDE00z"), "a??z") << page;
    EXPECT_EQ(bytes(page, u"\xD83D"), "?") << page;
    EXPECT_EQ(bytes(page, u"\xDE00\xD83D"), "??") << page;
  }
}

TEST_P(CodePagesContract, GiveBackEveryByteOfAOneBytePage) {
  for (const Long page : kOneBytePages) {
    for (unsigned byte = 0; byte < 0x100; ++byte) {
      const std::string one(1, static_cast<char>(byte));
      ASSERT_EQ(wide(page, one).size(), 1U) << page << ' ' << byte;
      ASSERT_EQ(bytes(page, wide(page, one)), one) << page << ' ' << byte;
    }
  }
}

TEST_P(CodePagesContract, HavePlaceForBytesThatAPageLeavesOpen) {
  const struct {
    Long page;
    const char* bytes;
    const char16_t* text;
  } rows[] = {{1252, "\x81\x8D\x9D", u"\x81\x8D\x9D"},
              {1251, "\x98", u"\x98"},
              {874, "\x81\xDB\xFF", u"\x81\xF8C1\xF8C8"},
              {1253, "\xAA\xD2\xFF", u"\xF8F9\xF8FA\xF8FB"},
              {1255, "\xCA\xD9\xDF\xFB\xFF", u"\x05BA\xF88D\xF893\xF894\xF896"},
              {1257, "\xA1\xA5", u"\xF8FC\xF8FD"},
              {932, "\x80\xA0\xFD\xFE\xFF", u"\x80\xF8F0\xF8F1\xF8F2\xF8F3"},
              {936, "\x80\xFF", u"\x20AC\xF8F5"},
              {949, "\x80\xFF", u"\x80\xF8F7"},
              {950, "\x80\xFF", u"\x80\xF8F8"}};
  for (const auto& row : rows) {
    EXPECT_EQ(wide(row.page, row.bytes), row.text) << row.page;
    EXPECT_EQ(bytes(row.page, row.text), row.bytes) << row.page;
  }
}

TEST_P(CodePagesContract, TakeALeadByteAlone) {
  for (const Long page : kDoubleBytePages) {
    const String unknown = page == 932 ? u"\x30FB" : u"?";
    EXPECT_EQ(wide(page, "\x82"), unknown) << page;
    EXPECT_EQ(wide(page, "a\x82"), u"a" + unknown) << page;
    EXPECT_EQ(wide(page, "\x82\0z"s), unknown + u"\0z"s) << page;
  }
}

TEST_P(CodePagesContract, TakeALeadByteWithWhateverFollows) {
  for (const Long page : kDoubleBytePages) {
    const String unknown = page == 932 ? u"\x30FB" : u"?";
    for (const char* pair : {"\x82 ", "\x82\xFF", "\x82\x7F", "\x82\n"})
      EXPECT_EQ(wide(page, std::string("a") + pair + "z"), u"a" + unknown + u"z") << page << pair;
  }
}

/// How many pairs a page has, and a sum over all of them by place. Both are those of Windows's own tables.
TEST_P(CodePagesContract, HaveThePairsOfWindows) {
  const struct {
    Long page;
    unsigned count;
    std::uint32_t sum;
  } rows[] = {
      {932, 9603, 0xD3C88084}, {936, 23940, 0xE3D76ACE}, {949, 17236, 0x625F176F}, {950, 19720, 0x0CEEDA2D}};
  for (const auto& row : rows) {
    const String unknown = wide(row.page, "\x82");
    unsigned count = 0;
    std::uint32_t sum = 0;
    for (unsigned code = 0x8100; code < 0xFF00; ++code) {
      const char pair[] = {static_cast<char>(code >> 8), static_cast<char>(code)};
      const String text = wide(row.page, {pair, 2});
      if (text.size() != 1 || text == unknown) continue;
      ++count;
      sum = sum * 31 + code * text[0];
      ASSERT_EQ(wide(row.page, bytes(row.page, text)), text) << row.page << ' ' << std::hex << code;
    }
    EXPECT_EQ(count, row.count) << row.page;
    EXPECT_EQ(sum, row.sum) << row.page;
  }
}

TEST_P(CodePagesContract, TakeAnUnknownNumberFor1252) {
  for (const Long page : {0, -1, 12345, 99999}) {
    EXPECT_EQ(bytes(page, u"é€\x3042"), "\xE9\x80?") << page;
    EXPECT_EQ(shown(wide(page, "\xE9\x80")), "é€") << page;
  }
}

TEST_P(CodePagesContract, TakeLongText) {
  const String text(100'000, u'あ');
  const std::string converted = bytes(932, text);
  EXPECT_EQ(converted.size(), 200'000U);
  EXPECT_EQ(wide(932, converted), text);
}

TEST_P(CodePagesContract, HaveAReplacementForWhatIsNoUtf8) {
  EXPECT_EQ(bytes(kUtf8, u"a\xD83Dz"), "a\xEF\xBF\xBDz");
  EXPECT_EQ(bytes(kUtf8, u"\xDE00"), "\xEF\xBF\xBD");
  EXPECT_EQ(wide(kUtf8, "a\x80z"), u"a\xFFFDz");
  EXPECT_EQ(wide(kUtf8, "\xC3"), u"\xFFFD");
  const String cut = wide(kUtf8, "a\xE2\x82z");
  EXPECT_EQ(cut.front(), u'a');
  EXPECT_EQ(cut.back(), u'z');
  EXPECT_EQ(cut.find_first_not_of(u'\xFFFD', 1), cut.size() - 1);
  EXPECT_GT(cut.size(), 2U);
}

}  // namespace
}  // namespace tessaly::tests
