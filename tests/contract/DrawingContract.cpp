// What a body of the area Drawing must do, whichever it is: surfaces and brushes.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>

#include "tests/contract/DrawingWorld.h"
#include "tests/support/Platform.h"

namespace tessaly::tests {
namespace {

using platform::DeviceContext;
using platform::DrawingObject;
using platform::PixelView;

class DrawingContract : public testing::TestWithParam<Body> {
 protected:
  bool isExcusedUnderWine() const { return GetParam() == Body::Own && underWine(); }

 private:
  DrawingWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Body, DrawingContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(DrawingContract, ANewSurfaceIsBlackAndOfItsSize) {
  const Canvas canvas(7, 5);
  const PixelView view = canvas.view();
  EXPECT_EQ(view.width, 7);
  EXPECT_EQ(view.height, 5);
  ASSERT_NE(view.pixels, nullptr);
  EXPECT_TRUE(std::all_of(view.pixels, view.pixels + 35, [](std::uint32_t pixel) { return pixel == 0; }));
}

TEST_P(DrawingContract, PixelsRunFromTheTopLeftWithoutGaps) {
  const Canvas canvas(3, 2);
  const Brush brush(0x030201);
  drawing().FillRect(canvas.surface(), {2, 0, 3, 1}, brush.get());
  drawing().FillRect(canvas.surface(), {0, 1, 1, 2}, brush.get());
  const std::uint32_t* const pixels = canvas.view().pixels;
  EXPECT_EQ(pixels[2], 0x010203U) << "red is in a colour's low byte and a pixel's third one";
  EXPECT_EQ(pixels[3], 0x010203U);
}

TEST_P(DrawingContract, WhatIsWrittenIntoThePixelsIsOnTheSurface) {
  const Canvas source({"ab"});
  const Canvas target(2, 1);
  EXPECT_TRUE(copy(target, {0, 0, 2, 1}, source, {0, 0, 2, 1}));
  EXPECT_EQ(target.text(), rows({"ab"}));
}

TEST_P(DrawingContract, SurfacesAreApart) {
  const Canvas first(2, 1);
  const Canvas second(2, 1);
  EXPECT_NE(first.surface(), second.surface());
  first.at(0, 0) = pixelOf('a');
  EXPECT_EQ(second.text(), rows({".."}));
}

TEST_P(DrawingContract, ALongRowIsASurfaceToo) {
  const Canvas wide(100'000, 1);
  const Canvas high(1, 100'000);
  wide.at(99'999, 0) = pixelOf('a');
  EXPECT_TRUE(copy(high, {0, 99'999, 1, 1}, wide, {99'999, 0, 1, 1}));
  EXPECT_EQ(high.at(0, 99'999), pixelOf('a'));
}

TEST_P(DrawingContract, ThereIsNoSurfaceWithoutPixels) {
  for (const auto& [width, height] :
       {std::pair<Long, Long>{0, 1}, {1, 0}, {0, 0}, {-1, 1}, {1, -1}, {-4, -4}}) {
    EXPECT_EQ(drawing().createSurface(width, height), 0) << width << " by " << height;
  }
}

TEST_P(DrawingContract, ThereIsNoSurfaceBeyondTheBound) {
  constexpr Long kMost = std::numeric_limits<Long>::max();
  constexpr Long kLeast = std::numeric_limits<Long>::min();
  for (const auto& [width, height] : {std::pair<Long, Long>{kMost, kMost},
                                      {kMost, 1},
                                      {1, kMost},
                                      {65'536, 65'536},
                                      {65'536, 1025},
                                      {(1 << 26) + 1, 1},
                                      {kLeast, kLeast},
                                      {kLeast, kMost},
                                      {100'000, 100'000}}) {
    EXPECT_EQ(drawing().createSurface(width, height), 0) << width << " by " << height;
  }
}

TEST_P(DrawingContract, NoSurfaceHasNoPixels) {
  const Brush brush(0);
  for (const DeviceContext none : {DeviceContext{0}, DeviceContext{12'345}, DeviceContext{-1}, brush.get()}) {
    const PixelView view = drawing().pixels(none);
    EXPECT_EQ(view.pixels, nullptr) << none;
    EXPECT_EQ(view.width, 0) << none;
    EXPECT_EQ(view.height, 0) << none;
  }
}

TEST_P(DrawingContract, NothingIsDrawnOnNoSurface) {
  const Canvas canvas({"ab"});
  const Brush brush(colourOf('c'));
  for (const DeviceContext none : {DeviceContext{0}, DeviceContext{12'345}, DeviceContext{-1}, brush.get()}) {
    EXPECT_EQ(drawing().FillRect(none, {0, 0, 1, 1}, brush.get()), 0) << none;
    EXPECT_EQ(drawing().SelectObject(none, brush.get()), 0) << none;
    EXPECT_FALSE(drawing().TransparentBlt(none, 0, 0, 1, 1, canvas.surface(), 0, 0, 1, 1, kKey)) << none;
    EXPECT_FALSE(drawing().TransparentBlt(canvas.surface(), 0, 0, 1, 1, none, 0, 0, 1, 1, kKey)) << none;
    drawing().deleteSurface(none);
  }
  EXPECT_EQ(canvas.text(), rows({"ab"}));
  EXPECT_EQ(drawing().FillRect(canvas.surface(), {0, 0, 1, 1}, brush.get()), 1) << "the brush has gone";
}

TEST_P(DrawingContract, ADeletedSurfaceIsNone) {
  const Brush brush(0);
  const DeviceContext surface = drawing().createSurface(2, 2);
  drawing().deleteSurface(surface);
  EXPECT_EQ(drawing().pixels(surface).pixels, nullptr);
  EXPECT_EQ(drawing().FillRect(surface, {0, 0, 1, 1}, brush.get()), 0);
  drawing().deleteSurface(surface);
}

TEST_P(DrawingContract, ManySurfacesAndBrushesComeAndGo) {
  for (int i = 0; i < 20'000; ++i) {
    const DeviceContext surface = drawing().createSurface(1, 1);
    const DrawingObject brush = drawing().CreateSolidBrush(i);
    ASSERT_TRUE(surface != 0 && brush != 0) << i;
    drawing().deleteSurface(surface);
    ASSERT_TRUE(drawing().DeleteObject(brush)) << i;
  }
}

TEST_P(DrawingContract, ABrushIsNoSurfaceAndASurfaceNoBrush) {
  const Canvas canvas({"ab"});
  EXPECT_EQ(drawing().FillRect(canvas.surface(), {0, 0, 1, 1}, canvas.surface()), 0);
  EXPECT_EQ(drawing().SelectObject(canvas.surface(), canvas.surface()), 0);
  EXPECT_FALSE(drawing().DeleteObject(canvas.surface()));
  EXPECT_EQ(canvas.text(), rows({"ab"}));
}

TEST_P(DrawingContract, SelectingGivesTheBrushThatWasThere) {
  const Canvas canvas(1, 1);
  const Brush first(0x111111);
  const Brush second(0x222222);
  const DrawingObject before = drawing().SelectObject(canvas.surface(), first.get());
  EXPECT_NE(before, 0);
  EXPECT_EQ(drawing().SelectObject(canvas.surface(), second.get()), first.get());
  EXPECT_EQ(drawing().SelectObject(canvas.surface(), second.get()), second.get());
  EXPECT_EQ(drawing().SelectObject(canvas.surface(), before), second.get());
}

TEST_P(DrawingContract, ASurfaceComesWithAWhiteBrush) {
  const Canvas canvas(2, 1);
  const Brush other(0);
  const DrawingObject white = drawing().SelectObject(canvas.surface(), other.get());
  EXPECT_EQ(drawing().FillRect(canvas.surface(), {0, 0, 1, 1}, white), 1);
  EXPECT_EQ(canvas.text(), rows({"#."}));
  EXPECT_TRUE(drawing().DeleteObject(white));
  EXPECT_EQ(drawing().FillRect(canvas.surface(), {1, 0, 2, 1}, white), 1) << "it has gone";
  EXPECT_EQ(drawing().SelectObject(canvas.surface(), white), other.get());
}

TEST_P(DrawingContract, SelectingWhatIsNoBrushLeavesTheOneThatWasThere) {
  const Canvas canvas(1, 1);
  const Brush brush(0x111111);
  const DrawingObject white = drawing().SelectObject(canvas.surface(), brush.get());
  const DrawingObject deleted = drawing().CreateSolidBrush(0);
  EXPECT_TRUE(drawing().DeleteObject(deleted));
  for (const DrawingObject none : {DrawingObject{0}, DrawingObject{6}, DrawingObject{-1}, deleted}) {
    EXPECT_EQ(drawing().SelectObject(canvas.surface(), none), 0) << none;
  }
  EXPECT_EQ(drawing().SelectObject(canvas.surface(), white), brush.get());
}

TEST_P(DrawingContract, OneBrushServesManySurfaces) {
  const Canvas first(1, 1);
  const Canvas second(1, 1);
  const Brush brush(colourOf('a'));
  const DrawingObject white = drawing().SelectObject(first.surface(), brush.get());
  EXPECT_EQ(drawing().SelectObject(second.surface(), brush.get()), white);
  EXPECT_EQ(drawing().FillRect(second.surface(), {0, 0, 1, 1}, brush.get()), 1);
  EXPECT_EQ(drawing().SelectObject(first.surface(), white), brush.get());
  EXPECT_EQ(drawing().SelectObject(second.surface(), white), brush.get());
}

TEST_P(DrawingContract, BrushesOfOneColourAreApart) {
  std::set<DrawingObject> brushes;
  for (int i = 0; i < 10; ++i) brushes.insert(drawing().CreateSolidBrush(0x123456));
  EXPECT_EQ(brushes.size(), 10U);
  for (const DrawingObject brush : brushes) EXPECT_TRUE(drawing().DeleteObject(brush));
}

TEST_P(DrawingContract, DeletesABrushOnce) {
  const DrawingObject brush = drawing().CreateSolidBrush(0x123456);
  EXPECT_TRUE(drawing().DeleteObject(brush));
  EXPECT_FALSE(drawing().DeleteObject(brush));
  EXPECT_FALSE(drawing().DeleteObject(0));
  EXPECT_FALSE(drawing().DeleteObject(-1));
}

TEST_P(DrawingContract, ABrushInASurfaceIsNotDeleted) {
  if (isExcusedUnderWine()) GTEST_SKIP() << "Wine: says that it is, and deletes it when it is taken out";
  const Canvas canvas(1, 1);
  const DrawingObject brush = drawing().CreateSolidBrush(colourOf('a'));
  const DrawingObject white = drawing().SelectObject(canvas.surface(), brush);
  EXPECT_FALSE(drawing().DeleteObject(brush));
  EXPECT_EQ(drawing().FillRect(canvas.surface(), {0, 0, 1, 1}, brush), 1);
  EXPECT_EQ(drawing().SelectObject(canvas.surface(), white), brush);
  EXPECT_TRUE(drawing().DeleteObject(brush));
}

TEST_P(DrawingContract, ADeletedSurfaceLetsItsBrushGo) {
  const DeviceContext surface = drawing().createSurface(1, 1);
  const DrawingObject brush = drawing().CreateSolidBrush(0);
  EXPECT_NE(drawing().SelectObject(surface, brush), 0);
  drawing().deleteSurface(surface);
  EXPECT_TRUE(drawing().DeleteObject(brush));
}

}  // namespace
}  // namespace tessaly::tests
