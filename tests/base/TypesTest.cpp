#include "tessaly/base/Types.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(BooleanType, TakesTwoBytes) { EXPECT_EQ(sizeof(Boolean), 2U); }

TEST(BooleanType, IsMinusOneForTrueAndZeroForFalse) {
  EXPECT_EQ(static_cast<std::int16_t>(Boolean(true)), -1);
  EXPECT_EQ(static_cast<std::int16_t>(Boolean(false)), 0);
  EXPECT_EQ(True, -1);
  EXPECT_EQ(False, 0);
  EXPECT_EQ(Boolean(), 0);
}

TEST(BooleanType, KeepsTheLowSixteenBitsOfAnInteger) {
  EXPECT_EQ(Boolean(2), 2);
  EXPECT_EQ(Boolean(0xFFFF), -1);
  EXPECT_EQ(Boolean(0x10000), 0);
  EXPECT_EQ(Boolean(0x12345LL), 0x2345);
}

TEST(BooleanType, CountsAnyNonZeroNumberAsTrue) {
  const auto test = [](Boolean value) { return value ? "true" : "false"; };
  EXPECT_STREQ(test(1), "true");
  EXPECT_STREQ(test(-7), "true");
  EXPECT_STREQ(test(0), "false");
  EXPECT_STREQ(test(0x10000), "false");
}

}  // namespace
}  // namespace tessaly
