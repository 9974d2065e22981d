// What holds of handles where the library makes them itself.

#include <gtest/gtest.h>

#include <vector>

#include "tessaly/platform/Desktop.h"

namespace tessaly::tests {
namespace {

platform::Drawing& drawing() { return *platform::desktop().drawing; }

TEST(DrawingOnLinux, ADeletedBrushStaysOneWhenItsLikeTakesItsPlace) {
  const auto deleted = drawing().CreateSolidBrush(0x123456);
  EXPECT_TRUE(drawing().DeleteObject(deleted));
  const auto next = drawing().CreateSolidBrush(0x123456);
  EXPECT_NE(next, deleted);
  EXPECT_FALSE(drawing().DeleteObject(deleted));
  EXPECT_TRUE(drawing().DeleteObject(next));
}

TEST(DrawingOnLinux, ADeletedSurfaceStaysOneWhenItsLikeTakesItsPlace) {
  const auto deleted = drawing().createSurface(2, 1);
  drawing().deleteSurface(deleted);
  const auto next = drawing().createSurface(2, 1);
  EXPECT_NE(next, deleted);
  EXPECT_EQ(drawing().pixels(deleted).pixels, nullptr);
  drawing().deleteSurface(deleted);
  EXPECT_NE(drawing().pixels(next).pixels, nullptr);
  drawing().deleteSurface(next);
}

TEST(DrawingOnLinux, ThereAreNoMoreThanTheTableHoldsAndThenAgain) {
  std::vector<platform::DrawingObject> brushes;
  while (const auto brush = drawing().CreateSolidBrush(0)) brushes.push_back(brush);
  EXPECT_GT(brushes.size(), 60'000U);
  EXPECT_EQ(drawing().createSurface(1, 1), 0);
  for (const auto brush : brushes) EXPECT_TRUE(drawing().DeleteObject(brush));
  const auto surface = drawing().createSurface(1, 1);
  EXPECT_NE(surface, 0);
  drawing().deleteSurface(surface);
}

}  // namespace
}  // namespace tessaly::tests
