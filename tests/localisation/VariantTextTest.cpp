#include "tessaly/localisation/VariantText.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/Errors.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Print.h"

namespace tessaly {
namespace {

using tests::errorOf;
using tests::shown;

std::string textOf(const Variant& value) { return shown(VariantText(value).view()); }

TEST(VariantTexts, AreTheOrdinaryTextOfEachKind) {
  const tests::LanguageFolder english;
  EXPECT_EQ(textOf(True), "True");
  EXPECT_EQ(textOf(False), "False");
  EXPECT_EQ(textOf(Boolean(7)), "True");
  EXPECT_EQ(textOf(std::int16_t{-32768}), "-32768");
  EXPECT_EQ(textOf(0), "0");
  EXPECT_EQ(textOf(std::numeric_limits<Long>::min()), "-2147483648");
  EXPECT_EQ(textOf(2.5), "2.5");
  EXPECT_EQ(textOf(3.0), "3");
  EXPECT_EQ(textOf(1e-5), "1E-05");
  EXPECT_EQ(textOf(u""), "");
  EXPECT_EQ(textOf(u"a text"), "a text");
}

TEST(VariantTexts, HaveTheUsersDecimalSeparator) {
  const tests::LanguageFolder odd(1065, u"\x066B");
  EXPECT_EQ(textOf(2.5), "2٫5");
  EXPECT_EQ(textOf(u"2.5"), "2.5");
}

TEST(VariantTexts, RaiseErrorSixForWhatIsNotFinite) {
  EXPECT_EQ(errorOf([] { textOf(std::numeric_limits<double>::infinity()); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([] { textOf(std::numeric_limits<double>::quiet_NaN()); }), RuntimeError::Overflow);
}

}  // namespace
}  // namespace tessaly
