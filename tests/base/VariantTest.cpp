#include "tessaly/base/Variant.h"

#include <gtest/gtest.h>

#include "tests/support/Errors.h"

namespace tessaly {
namespace {

using tests::errorOf;

template <class Kind>
bool holds(const Variant& variant) {
  return std::holds_alternative<Kind>(variant.value());
}

TEST(Variants, KeepTheirKindsApart) {
  EXPECT_TRUE(holds<Boolean>(True));
  EXPECT_TRUE(holds<Boolean>(true));
  EXPECT_TRUE(holds<std::int16_t>(std::int16_t{3}));
  EXPECT_TRUE(holds<Long>(3));
  EXPECT_TRUE(holds<double>(3.0));
  EXPECT_TRUE(holds<String>(u"3"));
  EXPECT_TRUE(holds<String>(String(u"3")));
  EXPECT_TRUE(holds<String>(std::u16string_view(u"3")));
}

TEST(Variants, GiveANumberForWhatIsOne) {
  EXPECT_EQ(Variant(True).toLong(), -1);
  EXPECT_EQ(Variant(False).toLong(), 0);
  EXPECT_EQ(Variant(Boolean(5)).toLong(), 5);
  EXPECT_EQ(Variant(std::int16_t{-5}).toLong(), -5);
  EXPECT_EQ(Variant(2147483647).toLong(), 2147483647);
  EXPECT_EQ(Variant(2.5).toLong(), 2);
  EXPECT_EQ(Variant(u"42").toLong(), 42);
  EXPECT_EQ(Variant(u" -1.5 ").toLong(), -2);
}

TEST(Variants, RaiseErrorThirteenForATextThatIsNoNumber) {
  for (const char16_t* text : {u"", u" ", u"x", u"1x", u"1,5"}) {
    EXPECT_EQ(errorOf([&] { Variant(text).toLong(); }), RuntimeError::TypeMismatch);
  }
}

TEST(Variants, RaiseErrorSixOutsideThirtyTwoBits) {
  EXPECT_EQ(errorOf([] { Variant(1e10).toLong(); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([] { Variant(u"1e10").toLong(); }), RuntimeError::Overflow);
}

}  // namespace
}  // namespace tessaly
