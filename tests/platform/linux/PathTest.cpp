#include "tessaly/platform/linux/Path.h"

#include <gtest/gtest.h>

namespace tessaly::platform {
namespace {

using namespace std::string_literals;

TEST(Paths, AreUtf8WhereTheyCanBe) {
  EXPECT_EQ(pathBytes(u"/texts/français/日本語 😀.xml"), "/texts/français/日本語 😀.xml");
  EXPECT_EQ(pathText("/texts/français/日本語 😀.xml"), u"/texts/français/日本語 😀.xml");
}

TEST(Paths, CarryOtherBytesAsLoneSurrogates) {
  EXPECT_EQ(pathText("fran\xE7"
                     "ais"),
            u"fran\xDCE7"
            u"ais");
  EXPECT_EQ(pathBytes(u"\xDC80\xDCFF"), "\x80\xFF");
}

TEST(Paths, BringEveryByteBack) {
  for (int first = 1; first < 256; ++first) {
    for (int second = 1; second < 256; ++second) {
      const std::string bytes = {static_cast<char>(first), static_cast<char>(second), 'x'};
      ASSERT_EQ(pathBytes(pathText(bytes)), bytes) << first << " " << second;
    }
  }
}

TEST(Paths, ReplaceSurrogatesThatStandForNoByte) {
  EXPECT_EQ(pathBytes(u"\xD800"), "\xEF\xBF\xBD");
  EXPECT_EQ(pathBytes(u"\xDC7F"), "\xEF\xBF\xBD");
  EXPECT_EQ(pathBytes(u"\xDD00"), "\xEF\xBF\xBD");
}

TEST(Paths, HaveNoNul) { EXPECT_EQ(pathBytes(u"a\0b"s), std::nullopt); }

}  // namespace
}  // namespace tessaly::platform
