#include "tessaly/base/Ascii.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(Ascii, CapitalLettersBecomeSmallAndNothingElseDoes) {
  EXPECT_EQ(asciiLowerText(u"@AZ[`az{0 \u00C4\u0130\u212A"), u"@az[`az{0 \u00C4\u0130\u212A");
  EXPECT_EQ(asciiLowerText("Charset=\xC4"), "charset=\xC4");
  EXPECT_EQ(asciiLowerText(""), "");
}

TEST(Ascii, AHexadecimalDigitHasItsValueInEitherCase) {
  for (std::uint32_t value = 0; value < 16; ++value) {
    EXPECT_EQ(hexDigitValue(u"0123456789abcdef"[value]), value);
    EXPECT_EQ(hexDigitValue(u"0123456789ABCDEF"[value]), value);
  }
  for (const char16_t other : {u'/', u':', u'@', u'G', u'`', u'g', u'\u0130', u'\uFF11', u'\0', u'\x1F'}) {
    EXPECT_EQ(hexDigitValue(other), 16U) << static_cast<unsigned>(other);
  }
}

}  // namespace
}  // namespace tessaly
