#include "tessaly/base/Rounding.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <limits>

#include "tests/support/Errors.h"

namespace tessaly {
namespace {

using tests::errorOf;

TEST(Rounding, TakesTheNearestIntegerAndTheEvenOneOfTwo) {
  const std::pair<double, Long> rows[] = {{0, 0},
                                          {0.4, 0},
                                          {0.5, 0},
                                          {0.6, 1},
                                          {1.5, 2},
                                          {2.5, 2},
                                          {-0.5, 0},
                                          {-0.6, -1},
                                          {-1.5, -2},
                                          {-2.5, -2},
                                          {3.4999999, 3},
                                          {1e-300, 0},
                                          {0.49999999999999994, 0}};
  for (const auto& [value, expected] : rows) EXPECT_EQ(roundToLong(value), expected) << value;
}

TEST(Rounding, ReachesTheEndsOfThirtyTwoBits) {
  EXPECT_EQ(roundToLong(2147483647.4), 2147483647);
  EXPECT_EQ(roundToLong(-2147483648.5), std::numeric_limits<Long>::min());
  EXPECT_EQ(errorOf([] { roundToLong(2147483647.5); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([] { roundToLong(-2147483648.6); }), RuntimeError::Overflow);
}

TEST(Rounding, RefusesWhatIsNoNumber) {
  EXPECT_EQ(errorOf([] { roundToLong(std::numeric_limits<double>::quiet_NaN()); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([] { roundToLong(std::numeric_limits<double>::infinity()); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([] { roundToLong(-std::numeric_limits<double>::infinity()); }), RuntimeError::Overflow);
}

TEST(Rounding, DoesNotFollowTheRoundingModeOfTheHost) {
  const int before = std::fegetround();
  std::fesetround(FE_UPWARD);
  EXPECT_EQ(roundToLong(0.5), 0);
  EXPECT_EQ(roundToLong(2.2), 2);
  std::fesetround(before);
}

}  // namespace
}  // namespace tessaly
