// A control's own surface: its size, its colours, and what its container brings it.

#include "tessaly/forms/UserControl.h"

#include <gtest/gtest.h>

#include <limits>

#include "tessaly/forms/Label.h"
#include "tessaly/forms/Line.h"
#include "tessaly/forms/headless/Form.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Drawing.h"
#include "tests/forms/ControlOfTests.h"
#include "tests/forms/PixelsOfTests.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

using Events = std::vector<std::string>;

class UserControlTest : public testing::Test {
 protected:
  UserControlTest() { control_.events.clear(); }

  Rows rows() { return shownRows(*place_.picture()); }

  headless::Form form_;
  ControlOfTests& control_ = form_.add<ControlOfTests>({0, 0, 2, 1});
  headless::Place& place_ = form_.placeOf(control_);
  UserControl& surface_ = control_.surface();
};

TEST_F(UserControlTest, BeginsInPixelsWithoutASurface) {
  EXPECT_EQ(surface_.ScaleMode(), 3);
  EXPECT_EQ(surface_.ScaleWidth(), 2);
  EXPECT_EQ(surface_.ScaleHeight(), 1);
  EXPECT_EQ(surface_.Width(), 30);
  EXPECT_EQ(surface_.Height(), 15);
  EXPECT_EQ(surface_.BackColor(), kButtonFace);
  EXPECT_EQ(surface_.hDC(), 0);
  EXPECT_FALSE(surface_.AutoRedraw());
  EXPECT_EQ(surface_.MousePointer(), 0);
  surface_.ScaleMode(1);
  EXPECT_EQ(surface_.ScaleWidth(), 30);
}

TEST_F(UserControlTest, IsShownInItsBackColorWhereItHasNoSurface) {
  surface_.BackColor(kRed);
  surface_.Cls();
  EXPECT_EQ(rows(), (Rows{"rr"}));
  surface_.BackColor(kButtonFace);
  EXPECT_EQ(place_.picture()->pixels()[0], 0xFFF0F0F0U);
}

TEST_F(UserControlTest, PaintComesOnlyWhereItHasNoSurface) {
  rows();
  EXPECT_EQ(control_.events, (Events{"Paint"}));
  surface_.AutoRedraw(True);
  rows();
  EXPECT_EQ(control_.events, (Events{"Paint"}));
  surface_.AutoRedraw(False);
  rows();
  EXPECT_EQ(control_.events, (Events{"Paint", "Paint"}));
}

TEST_F(UserControlTest, ASurfaceMadeInPaintIsShownAtOnce) {
  control_.on["Paint"] = [this] {
    surface_.BackColor(kGreen);
    surface_.AutoRedraw(True);
    surface_.BackColor(kRed);
  };
  EXPECT_EQ(rows(), (Rows{"gg"}));
}

// A control that only clears itself in Paint had itself painted again by that, for ever.
TEST_F(UserControlTest, WhatPaintDrawsAsksForNoOtherPainting) {
  control_.on["Paint"] = [this] {
    surface_.BackColor(kRed);
    surface_.Cls();
    surface_.Refresh();
    Line line(surface_);
    line.Visible(True);
    Label label(surface_);
    label.Caption(u"Home");
  };
  EXPECT_EQ(rows(), (Rows{"rr"}));
  EXPECT_EQ(place_.laterRepaints(), 0);
  EXPECT_EQ(place_.repaints(), 0);
}

TEST_F(UserControlTest, APaintThatIsShownFromWithinGoesOnAsOne) {
  control_.on["Paint"] = [this] {
    control_.on.clear();
    rows();
    surface_.Cls();
  };
  rows();
  EXPECT_EQ(control_.events, (Events{"Paint", "Paint"}));
  EXPECT_EQ(place_.laterRepaints(), 0);
}

TEST_F(UserControlTest, AfterAPaintThatFailsAChangeIsShownAgain) {
  control_.on["Paint"] = [] { throw RuntimeError(RuntimeError::Overflow); };
  rows();
  surface_.Cls();
  surface_.Refresh();
  EXPECT_EQ(place_.laterRepaints(), 1);
  EXPECT_EQ(place_.repaints(), 1);
}

TEST_F(UserControlTest, BackColorTakesEffectAtTheNextCls) {
  surface_.BackColor(kBlue);
  surface_.AutoRedraw(True);
  surface_.BackColor(kRed);
  EXPECT_EQ(rows(), (Rows{"bb"}));
  surface_.Cls();
  EXPECT_EQ(rows(), (Rows{"rr"}));
  EXPECT_EQ(place_.laterRepaints(), 1);
  EXPECT_EQ(place_.repaints(), 0);
}

TEST_F(UserControlTest, AnotherSizeClearsTheSurface) {
  surface_.BackColor(kBlue);
  surface_.AutoRedraw(True);
  surface_.BackColor(kRed);
  place_.drag({1, 2});
  EXPECT_EQ(rows(), (Rows{"r", "r"}));
}

TEST_F(UserControlTest, WithoutASurfaceThereIsNoDeviceContext) {
  surface_.AutoRedraw(True);
  EXPECT_NE(surface_.hDC(), 0);
  surface_.Width(0);
  EXPECT_EQ(surface_.hDC(), 0);
  EXPECT_TRUE(place_.picture()->isEmpty());
  surface_.Width(15);
  EXPECT_NE(surface_.hDC(), 0);
  surface_.AutoRedraw(False);
  EXPECT_EQ(surface_.hDC(), 0);
}

TEST_F(UserControlTest, AnAssignedSizeRaisesResizeBeforeItReturns) {
  surface_.Width(60);
  EXPECT_EQ(control_.events, (Events{"Resize"}));
  surface_.Width(60);
  surface_.Height(15);
  EXPECT_EQ(control_.events, (Events{"Resize"}));
  surface_.Height(30);
  EXPECT_EQ(control_.events, (Events{"Resize", "Resize"}));
  EXPECT_EQ(place_.size(), (PixelSize{4, 2}));
}

TEST_F(UserControlTest, AResizeThatAssignsTheSizeRunsAgainWithin) {
  std::vector<Long> seen;
  control_.on["Resize"] = [&] {
    seen.push_back(place_.size().width);
    if (place_.size().width < 6) surface_.Width(surface_.Width() + 15);
    seen.push_back(-place_.size().width);
  };
  place_.drag({4, 1});
  EXPECT_EQ(seen, (std::vector<Long>{4, 5, 6, -6, -6, -6}));
}

TEST_F(UserControlTest, SizesAreTwipsRoundedToPixels) {
  for (const auto& [twips, pixels] : {std::pair{7.5, 0}, {22.5, 2}, {37.5, 2}, {491505.0, 32767}}) {
    surface_.Width(twips);
    EXPECT_EQ(place_.size().width, pixels) << twips;
  }
}

TEST_F(UserControlTest, ASizeThatIsNoneIsError380) {
  for (const double twips : {-1.0, 491513.0, 1e300, -std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(errorOf([&] { surface_.Width(twips); }), RuntimeError::InvalidPropertyValue) << twips;
    EXPECT_EQ(errorOf([&] { surface_.Height(twips); }), RuntimeError::InvalidPropertyValue) << twips;
  }
  EXPECT_EQ(errorOf([&] { surface_.ScaleMode(0); }), RuntimeError::InvalidPropertyValue);
  EXPECT_TRUE(control_.events.empty());
}

TEST_F(UserControlTest, TheTopByteOfAColourThatIsNoSystemColourIsNotSeen) {
  EXPECT_EQ(shownColour(0x7F010203, surface_.container()), 0x010203);
}

TEST_F(UserControlTest, ASurfaceOfTooManyPixelsIsError7) {
  place_.drag({32767, 32767});
  EXPECT_EQ(errorOf([&] { surface_.AutoRedraw(True); }), RuntimeError::OutOfMemory);
  EXPECT_FALSE(surface_.AutoRedraw());
  EXPECT_EQ(errorOf([&] { place_.picture(); }), RuntimeError::OutOfMemory);
}

TEST(UserControlOnAStandInTest, KeepsItsSurfaceWhereNoneCanBeMade) {
  platform::fake::Drawing drawing;
  const platform::Override inForce(drawing);
  headless::Form form;
  auto& control = form.add<ControlOfTests>({0, 0, 2, 2});
  control.surface().BackColor(kRed);
  control.surface().AutoRedraw(True);
  control.surface().BackColor(kBlue);
  control.events.clear();
  drawing.fail("createSurface");
  form.placeOf(control).drag({3, 1});
  ASSERT_EQ(form.errors().size(), 1U);
  EXPECT_EQ(form.errors()[0].number(), RuntimeError::OutOfMemory);
  EXPECT_TRUE(control.events.empty());
  EXPECT_EQ(shownRows(*form.placeOf(control).picture()), (Rows{"rrb"}));
}

}  // namespace
}  // namespace tessaly::tests
