#include "tessaly/base/Text.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using namespace std::string_literals;

TEST(Text, GoesFromUtf8ToWideAndBack) {
  const std::pair<const char*, String> rows[] = {
      {"", u""},
      {"plain", u"plain"},
      {"\x7F\xC2\x80\xDF\xBF", u"\x7F\x80\x7FF"},
      {"\xE0\xA0\x80\xEF\xBF\xBF", u"\x800\xFFFF"},
      {"\xED\x9F\xBF\xEE\x80\x80", u"\xD7FF\xE000"},
      {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", u"\xD800\xDC00\xDBFF\xDFFF"},
      {"a\xF0\x9F\x98\x80z", u"a\xD83D\xDE00z"}};
  for (const auto& [utf8, wide] : rows) {
    EXPECT_EQ(fromUtf8(utf8), wide) << utf8;
    EXPECT_EQ(toUtf8(wide), utf8) << utf8;
  }
}

TEST(Text, KeepsANulInside) {
  EXPECT_EQ(fromUtf8("a\0b"s), u"a\0b"s);
  EXPECT_EQ(toUtf8(u"a\0b"s), "a\0b"s);
}

TEST(Text, ReplacesEachByteThatIsNoUtf8) {
  const std::pair<std::string, String> rows[] = {
      {"\x80", u"\xFFFD"},                                // a trail byte alone
      {"a\xBFz", u"a\xFFFDz"},                            //
      {"\xC0\xAF", u"\xFFFD\xFFFD"},                      // two bytes for what needs one
      {"\xE0\x80\xAF", u"\xFFFD\xFFFD\xFFFD"},            // three bytes for what needs one
      {"\xF0\x80\x80\xAF", u"\xFFFD\xFFFD\xFFFD\xFFFD"},  // four bytes for what needs one
      {"\xED\xA0\x80", u"\xFFFD\xFFFD\xFFFD"},            // a surrogate
      {"\xF4\x90\x80\x80", u"\xFFFD\xFFFD\xFFFD\xFFFD"},  // beyond the last code point
      {"\xF8\x88\x80\x80\x80", u"\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD"},
      {"\xFF\xFE", u"\xFFFD\xFFFD"},
      {"\xC3", u"\xFFFD"},  // cut at the end
      {"\xE2\x82", u"\xFFFD\xFFFD"},
      {"\xF0\x9F\x98", u"\xFFFD\xFFFD\xFFFD"},
      {"\xC3\x28", u"\xFFFD("}};
  for (const auto& [utf8, wide] : rows) EXPECT_EQ(fromUtf8(utf8), wide);
}

TEST(Text, ReplacesASurrogateWithoutItsPartner) {
  EXPECT_EQ(toUtf8(u"a\xD800z"), "a\xEF\xBF\xBDz");
  EXPECT_EQ(toUtf8(u"\xDC00"), "\xEF\xBF\xBD");
  EXPECT_EQ(toUtf8(u"\xD800"), "\xEF\xBF\xBD");
  EXPECT_EQ(toUtf8(u"\xDC00\xD800"), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Text, GoesToTheWideTextOfTheStandardLibraryAndBack) {
  for (const String& text :
       {String(u""), String(u"plain"), String(u"\x416\x3042"), String(u"\xD83D\xDE00 smile")}) {
    EXPECT_EQ(fromWide(toWide(text)), text);
  }
  EXPECT_EQ(toWide(u"\x416"), L"\x416");
  EXPECT_EQ(toWide(u"\xD83D\xDE00"), L"\U0001F600");
}

}  // namespace
}  // namespace tessaly
