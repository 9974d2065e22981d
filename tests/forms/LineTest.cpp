// Lines above a control's surface, pixel by pixel.

#include "tessaly/forms/Line.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <limits>

#include "tessaly/forms/headless/Form.h"
#include "tests/forms/ControlOfTests.h"
#include "tests/forms/PixelsOfTests.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

class LineTest : public testing::Test {
 protected:
  LineTest() { control_.surface().BackColor(kWhite); }

  void draw(double x1, double y1, double x2, double y2, std::int16_t width = 1) {
    line_.X1(x1);
    line_.Y1(y1);
    line_.X2(x2);
    line_.Y2(y2);
    line_.BorderWidth(width);
    line_.BorderColor(kRed);
    line_.Visible(True);
  }
  Rows rows() { return shownRows(*place_.picture()); }

  headless::Form form_;
  ControlOfTests& control_ = form_.add<ControlOfTests>({0, 0, 6, 5});
  headless::Place& place_ = form_.placeOf(control_);
  Line line_{control_.surface()};
};

TEST_F(LineTest, IsHiddenAtFirstAndOnePixelWide) {
  EXPECT_FALSE(line_.Visible());
  EXPECT_EQ(line_.BorderWidth(), 1);
  EXPECT_EQ(rows(), Rows(5, "wwwwww"));
}

TEST_F(LineTest, GoesFromEndToEndBothIncluded) {
  draw(1, 2, 4, 2);
  EXPECT_EQ(rows(), (Rows{"wwwwww", "wwwwww", "wrrrrw", "wwwwww", "wwwwww"}));
  draw(4, 2, 1, 2);
  EXPECT_EQ(rows()[2], "wrrrrw");
  draw(3, 1, 3, 3);
  EXPECT_EQ(rows(), (Rows{"wwwwww", "wwwrww", "wwwrww", "wwwrww", "wwwwww"}));
  draw(5, 4, 5, 4);
  EXPECT_EQ(rows(), (Rows{"wwwwww", "wwwwww", "wwwwww", "wwwwww", "wwwwwr"}));
}

TEST_F(LineTest, GrowsFromTheMiddleAndIsMovedInsideAtAnEdge) {
  draw(0, 2, 5, 2, 3);
  EXPECT_EQ(rows(), (Rows{"wwwwww", "rrrrrr", "rrrrrr", "rrrrrr", "wwwwww"}));
  draw(0, 2, 5, 2, 2);
  EXPECT_EQ(rows(), (Rows{"wwwwww", "wwwwww", "rrrrrr", "rrrrrr", "wwwwww"}));
  for (const std::int16_t width : std::vector<std::int16_t>{1, 2, 3, 4, 5}) {
    Rows top(5, "wwwwww");
    std::fill_n(top.begin(), width, "rrrrrr");
    draw(0, 0, 5, 0, width);
    EXPECT_EQ(rows(), top) << width;
    draw(0, 4, 5, 4, width);
    EXPECT_EQ(rows(), Rows(top.rbegin(), top.rend())) << width;
    const std::string left = std::string(static_cast<std::size_t>(width), 'r') +
                             std::string(6U - static_cast<std::size_t>(width), 'w');
    draw(0, 0, 0, 4, width);
    EXPECT_EQ(rows(), Rows(5, left)) << width;
    draw(5, 0, 5, 4, width);
    EXPECT_EQ(rows(), Rows(5, std::string(left.rbegin(), left.rend()))) << width;
  }
}

TEST_F(LineTest, FourOfThemAreABorder) {
  Line right(control_.surface());
  right.X1(5);
  right.Y1(1);
  right.X2(5);
  right.Y2(4);
  right.BorderColor(kBlue);
  right.Visible(True);
  draw(0, 0, 5, 0);
  EXPECT_EQ(rows(), (Rows{"rrrrrr", "wwwwwb", "wwwwwb", "wwwwwb", "wwwwwb"}));
}

TEST_F(LineTest, Diagonals) {
  draw(0, 0, 4, 4);
  EXPECT_EQ(rows(), (Rows{"rwwwww", "wrwwww", "wwrwww", "wwwrww", "wwwwrw"}));
  draw(4, 0, 0, 4);
  EXPECT_EQ(rows(), (Rows{"wwwwrw", "wwwrww", "wwrwww", "wrwwww", "rwwwww"}));
  draw(0, 1, 5, 3);
  EXPECT_EQ(rows(), (Rows{"wwwwww", "rrwwww", "wwrrww", "wwwwrr", "wwwwww"}));
  draw(1, 0, 2, 4);
  EXPECT_EQ(rows(), (Rows{"wrwwww", "wrwwww", "wwrwww", "wwrwww", "wwrwww"}));
  draw(2, 4, 1, 0);
  EXPECT_EQ(rows(), (Rows{"wrwwww", "wrwwww", "wwrwww", "wwrwww", "wwrwww"}));
  draw(0, 1, 5, 3, 2);
  EXPECT_EQ(rows(), (Rows{"wwwwww", "rrwwww", "rrrrww", "wwrrrr", "wwwwrr"}));
}

TEST_F(LineTest, WhatIsOutsideIsCutOff) {
  draw(-3, 2, 2, 2);
  EXPECT_EQ(rows()[2], "rrrwww");
  draw(-10, -10, 10, 10);
  EXPECT_EQ(rows(), (Rows{"rwwwww", "wrwwww", "wwrwww", "wwwrww", "wwwwrw"}));
  for (const auto& [x1, y1, x2, y2] : std::vector<std::array<double, 4>>{
           {0, -1, 5, -1}, {0, 5, 5, 5}, {-1, 0, -1, 4}, {6, 0, 6, 4}, {-4, 0, -1, 0}, {6, 0, 9, 0}}) {
    draw(x1, y1, x2, y2);
    EXPECT_EQ(rows(), Rows(5, "wwwwww"));
  }
  draw(0, -1, 5, -1, 3);
  EXPECT_EQ(rows(), (Rows{"rrrrrr", "wwwwww", "wwwwww", "wwwwww", "wwwwww"}));
}

TEST_F(LineTest, AWidthBeyondTheSurfaceFillsItAndOneBelow1IsError380) {
  draw(0, 2, 5, 2, 32767);
  EXPECT_EQ(rows(), Rows(5, "rrrrrr"));
  for (const std::int16_t width : std::vector<std::int16_t>{0, -1, -32768}) {
    EXPECT_EQ(errorOf([&] { line_.BorderWidth(width); }), RuntimeError::InvalidPropertyValue);
  }
  EXPECT_EQ(line_.BorderWidth(), 32767);
}

TEST_F(LineTest, HugeEndsCostNoMoreThanTheSurface) {
  const auto begin = std::chrono::steady_clock::now();
  for (const double far : {2e9, 1e18, 1e300}) {
    draw(-far, 2, far, 2);
    EXPECT_EQ(rows()[2], "rrrrrr");
    draw(-far, -far, far, far, 32767);
    EXPECT_EQ(rows(), Rows(5, "rrrrrr"));
    draw(2, far, 2, -far);
    EXPECT_EQ(rows(), Rows(5, "wwrwww"));
  }
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}

TEST_F(LineTest, AnEndThatIsNoneIsError380) {
  for (const double measure :
       {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(errorOf([&] { line_.X1(measure); }), RuntimeError::InvalidPropertyValue);
    EXPECT_EQ(errorOf([&] { line_.Y1(measure); }), RuntimeError::InvalidPropertyValue);
    EXPECT_EQ(errorOf([&] { line_.X2(measure); }), RuntimeError::InvalidPropertyValue);
    EXPECT_EQ(errorOf([&] { line_.Y2(measure); }), RuntimeError::InvalidPropertyValue);
  }
  EXPECT_EQ(line_.X1(), 0);
}

TEST_F(LineTest, IsInTheControlsScale) {
  control_.surface().ScaleMode(1);
  draw(15, 30, 60, 30);
  EXPECT_EQ(rows()[2], "wrrrrw");
}

TEST_F(LineTest, LiesAboveTheSurfaceAndNotOnIt) {
  control_.surface().AutoRedraw(True);
  draw(0, 0, 5, 0);
  EXPECT_EQ(rows()[0], "rrrrrr");
  line_.Visible(False);
  EXPECT_EQ(rows()[0], "wwwwww");
}

TEST_F(LineTest, ASystemColourIsTheContainers) {
  draw(0, 0, 0, 0);
  line_.BorderColor(kButtonFace);
  EXPECT_EQ(place_.picture()->pixels()[0], 0xFFF0F0F0U);
}

TEST_F(LineTest, AChangeThatShowsIsPaintedWhenThereIsTime) {
  draw(0, 0, 5, 0);
  const int before = place_.laterRepaints();
  line_.X1(0);
  line_.Visible(Boolean(1));
  EXPECT_EQ(place_.laterRepaints(), before);
  line_.X1(1);
  line_.BorderColor(kBlue);
  line_.Visible(False);
  EXPECT_EQ(place_.laterRepaints(), before + 3);
  line_.X1(2);
  EXPECT_EQ(place_.laterRepaints(), before + 3);
  EXPECT_EQ(place_.repaints(), 0);
}

TEST_F(LineTest, IsGoneFromTheSurfaceWhenItGoes) {
  {
    Line other(control_.surface());
    other.Visible(True);
    EXPECT_EQ(control_.surface().lines().size(), 2U);
  }
  EXPECT_EQ(control_.surface().lines().size(), 1U);
  EXPECT_EQ(rows(), Rows(5, "wwwwww"));
}

}  // namespace
}  // namespace tessaly::tests
