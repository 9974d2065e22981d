// The pointer over a link.

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/controls/LinkStage.h"

namespace tessaly::tests {
namespace {

constexpr std::uint32_t kBlack = 0xFF000000;
constexpr std::uint32_t kWhite = 0xFFFFFFFF;
constexpr std::uint32_t kClear = 0;

class HandPointerTest : public testing::Test {
 protected:
  std::uint32_t at(Long x, Long y) const {
    const PixelSize size = icon_.picture->size();
    const bool isInside = x >= 0 && y >= 0 && x < size.width && y < size.height;
    const auto place = std::ptrdiff_t{y} * size.width + x;
    return isInside ? icon_.picture->pixels()[static_cast<std::size_t>(place)] : kClear;
  }

  LinkStage stage_;
  MouseIcon icon_ = stage_.place().mouseIcon();
};

TEST_F(HandPointerTest, IsTheControlsOwn) { EXPECT_EQ(stage_.place().cursor(), 99); }

TEST_F(HandPointerTest, HasItsSizeAndItsPoint) {
  EXPECT_EQ(icon_.picture->size(), (PixelSize{32, 32}));
  EXPECT_EQ(icon_.hotSpot, (PixelPoint{13, 5}));
}

TEST_F(HandPointerTest, PointsWithTheTipOfItsFinger) {
  EXPECT_EQ(at(13, 5), kBlack);
  for (Long y = 0; y < 5; ++y) {
    for (Long x = 0; x < 32; ++x) EXPECT_EQ(at(x, y), kClear) << x << ' ' << y;
  }
  for (Long y = 6; y < 10; ++y) EXPECT_EQ(at(13, y), kWhite) << y;
}

TEST_F(HandPointerTest, IsBlackAroundAndWhiteInside) {
  std::size_t white = 0;
  std::size_t black = 0;
  for (Long y = 0; y < 32; ++y) {
    for (Long x = 0; x < 32; ++x) {
      black += at(x, y) == kBlack ? 1U : 0U;
      if (at(x, y) != kWhite) continue;
      ++white;
      for (const PixelPoint beside : {PixelPoint{x - 1, y}, {x + 1, y}, {x, y - 1}, {x, y + 1}})
        EXPECT_NE(at(beside.x, beside.y), kClear) << x << ' ' << y;
    }
  }
  EXPECT_GT(white, 100U);
  EXPECT_GT(black, 50U);
  const auto pixels = icon_.picture->pixels();
  EXPECT_EQ(white + black + static_cast<std::size_t>(std::count(pixels.begin(), pixels.end(), kClear)),
            pixels.size());
}

TEST_F(HandPointerTest, IsSharedByAllLinks) {
  auto& other = stage_.form().add<URLLink>({0, 0, 9, 9});
  EXPECT_EQ(stage_.form().placeOf(other).mouseIcon().picture, icon_.picture);
}

}  // namespace
}  // namespace tessaly::tests
