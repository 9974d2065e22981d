// Hidden picture boxes: when they take a size, when they are cleared, and what they hold then.

#include "tessaly/forms/PictureBox.h"

#include <gtest/gtest.h>

#include <limits>

#include "tessaly/forms/headless/Form.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Drawing.h"
#include "tests/forms/ControlOfTests.h"
#include "tests/forms/PixelsOfTests.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

class PictureBoxTest : public testing::Test {
 protected:
  PictureBoxTest() { box_.BackColor(kWhite); }

  void size(double width, double height) {
    box_.Width(width);
    box_.Height(height);
  }
  Rows rows() { return shownRows(*box_.Image()); }

  headless::Form form_;
  ControlOfTests& control_ = form_.add<ControlOfTests>({0, 0, 10, 10});
  PictureBox box_{control_.surface()};
};

TEST_F(PictureBoxTest, BeginsWithoutSizeAndSurface) {
  EXPECT_EQ(box_.Width(), 0);
  EXPECT_EQ(box_.Height(), 0);
  EXPECT_EQ(box_.hDC(), 0);
  EXPECT_EQ(box_.ScaleMode(), 1);
  EXPECT_EQ(PictureBox(control_.surface()).BackColor(), kButtonFace);
  box_.AutoRedraw(True);
  EXPECT_EQ(box_.hDC(), 0);
  EXPECT_TRUE(box_.Image()->isEmpty());
}

TEST_F(PictureBoxTest, HasASurfaceInItsBackColorWhereItIsPersistentAndHasPixels) {
  size(2, 1);
  EXPECT_EQ(box_.hDC(), 0);
  EXPECT_TRUE(box_.Image()->isEmpty());
  box_.AutoRedraw(True);
  EXPECT_NE(box_.hDC(), 0);
  EXPECT_EQ(rows(), (Rows{"ww"}));
  box_.AutoRedraw(False);
  EXPECT_EQ(box_.hDC(), 0);
  EXPECT_TRUE(box_.Image()->isEmpty());
}

TEST_F(PictureBoxTest, ASystemColourIsTheContainers) {
  box_.BackColor(kButtonFace);
  box_.AutoRedraw(True);
  size(1, 1);
  EXPECT_EQ(box_.Image()->pixels()[0], 0xFFF0F0F0U);
}

TEST_F(PictureBoxTest, AnotherSizeMakesTheSurfaceAnewWithThePicture) {
  box_.AutoRedraw(True);
  box_.Picture(pictured({"rg", "bk"}));
  EXPECT_TRUE(box_.Image()->isEmpty());
  size(3, 1);
  EXPECT_EQ(rows(), (Rows{"rgw"}));
  box_.Width(1);
  EXPECT_EQ(rows(), (Rows{"r"}));
}

TEST_F(PictureBoxTest, AutoSizeTakesThePicturesSizeBeforeAndAfterIt) {
  box_.AutoRedraw(True);
  box_.Picture(pictured({"rg", "b."}));
  box_.AutoSize(True);
  EXPECT_EQ(rows(), (Rows{"rg", "bw"}));
  box_.Picture(pictured({"ggg"}));
  EXPECT_EQ(rows(), (Rows{"ggg"}));
  box_.ScaleMode(3);
  EXPECT_EQ(box_.ScaleWidth(), 3);
  EXPECT_EQ(box_.ScaleHeight(), 1);
}

TEST_F(PictureBoxTest, WithoutAutoSizeItKeepsItsSize) {
  box_.AutoRedraw(True);
  size(2, 1);
  box_.Picture(pictured({"rgb", "rgb"}));
  EXPECT_EQ(rows(), (Rows{"rg"}));
  box_.AutoSize(True);
  box_.AutoSize(False);
  box_.Picture(pictured({"b"}));
  EXPECT_EQ(rows(), (Rows{"bww", "www"}));
}

TEST_F(PictureBoxTest, APictureNarrowerThanTheBoxLeavesTheRestOfEachRow) {
  box_.AutoRedraw(True);
  size(3, 4);
  box_.Picture(pictured({"rg", "bk", "gr"}));
  EXPECT_EQ(rows(), (Rows{"rgw", "bkw", "grw", "www"}));
}

TEST_F(PictureBoxTest, TheSameSizeAgainClearsNothing) {
  box_.AutoRedraw(True);
  size(2, 1);
  box_.BackColor(kRed);
  size(2, 1);
  EXPECT_EQ(rows(), (Rows{"ww"}));
}

TEST_F(PictureBoxTest, ThePictureThatItHasIsPaintedAgainOverWhatWasDrawn) {
  box_.AutoRedraw(True);
  size(2, 1);
  const PictureReference picture = pictured({"r."});
  box_.Picture(picture);
  const platform::DeviceContext kept = box_.hDC();
  for (int turn = 0; turn < 2; ++turn) {
    platform::desktop().drawing->pixels(kept).pixels[0] = 0x00FF00;
    EXPECT_EQ(rows(), (Rows{"gw"}));
    box_.Picture(picture);
    EXPECT_EQ(rows(), (Rows{"rw"}));
  }
}

TEST_F(PictureBoxTest, ThePictureThatItHasIsPaintedAgainOverAnotherBackColor) {
  box_.AutoRedraw(True);
  size(2, 1);
  const PictureReference picture = pictured({"r."});
  box_.Picture(picture);
  box_.BackColor(0);
  box_.Picture(picture);
  EXPECT_EQ(rows(), (Rows{"rk"}));
}

TEST_F(PictureBoxTest, TheTopByteOfItsPixelsIs0) {
  box_.AutoRedraw(True);
  size(4, 1);
  box_.Picture(pictured({"r."}));
  const platform::PixelView view = platform::desktop().drawing->pixels(box_.hDC());
  EXPECT_EQ(std::vector(view.pixels, view.pixels + 4),
            (std::vector<std::uint32_t>{0xFF0000, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF}));
  box_.Picture(pictured({"rgbk"}));
  EXPECT_EQ(platform::desktop().drawing->pixels(box_.hDC()).pixels[1], 0x00FF00U);
}

TEST_F(PictureBoxTest, NoPictureAndAnEmptyOneLeaveTheSizeAndClear) {
  box_.AutoRedraw(True);
  box_.AutoSize(True);
  for (const PictureReference& nothing : {PictureReference(), LoadPicture(u"")}) {
    box_.Picture(pictured({"rg", "bk"}));
    box_.Picture(nothing);
    EXPECT_EQ(rows(), (Rows{"ww", "ww"}));
    EXPECT_EQ(box_.Picture(), nothing);
  }
  box_.Picture(pictured({"r"}));
  box_.AutoSize(False);
  box_.Picture(nullptr);
  box_.AutoSize(True);
  EXPECT_EQ(rows(), (Rows{"w"}));
}

TEST_F(PictureBoxTest, EachAssignmentOfAPictureClearsWhatWasDrawn) {
  box_.AutoRedraw(True);
  size(3, 1);
  const auto picture = pictured({"r."});
  box_.Picture(picture);
  box_.BackColor(kBlue);
  EXPECT_EQ(rows(), (Rows{"rww"}));
  box_.Picture(picture);
  EXPECT_EQ(rows(), (Rows{"rbb"}));
}

TEST_F(PictureBoxTest, WhatCoversInPartIsMixedWithBackColor) {
  box_.AutoRedraw(True);
  box_.AutoSize(True);
  box_.BackColor(0x00FF00);
  box_.Picture(std::make_shared<const Picture>(
      PixelSize{3, 1}, std::vector<std::uint32_t>{0x80FF0000, 0xFE0000FF, 0x7FFFFFFF}));
  const auto image = box_.Image();
  EXPECT_EQ(std::vector(image->pixels().begin(), image->pixels().end()),
            (std::vector<std::uint32_t>{0xFF807F00, 0xFF0001FE, 0xFF00FF00}));
}

TEST_F(PictureBoxTest, AMixedColourIsTheNearest) {
  box_.AutoRedraw(True);
  box_.AutoSize(True);
  box_.BackColor(0);
  box_.Picture(std::make_shared<const Picture>(PixelSize{1, 1}, std::vector<std::uint32_t>{0x80010203}));
  EXPECT_EQ(box_.Image()->pixels()[0], 0xFF010102U);
}

TEST_F(PictureBoxTest, AnImageKeepsItsPixels) {
  box_.AutoRedraw(True);
  box_.AutoSize(True);
  box_.Picture(pictured({"rg"}));
  const auto image = box_.Image();
  box_.Picture(pictured({"bb"}));
  EXPECT_EQ(shownRows(*image), (Rows{"rg"}));
}

TEST_F(PictureBoxTest, ItsSizeIsInItsParentsScaleAndItsInsideInItsOwn) {
  size(4, 2);
  EXPECT_EQ(box_.ScaleWidth(), 60);
  box_.ScaleMode(3);
  EXPECT_EQ(box_.ScaleWidth(), 4);
  control_.surface().ScaleMode(1);
  EXPECT_EQ(box_.Width(), 60);
  box_.Height(45);
  EXPECT_EQ(box_.ScaleHeight(), 3);
}

TEST_F(PictureBoxTest, SizesAreRoundedToPixelsTiesToEven) {
  for (const auto& [given, taken] : {std::pair{0.5, 0}, {1.5, 2}, {2.5, 2}, {2.51, 3}, {32767.0, 32767}}) {
    box_.Width(given);
    EXPECT_EQ(box_.Width(), taken) << given;
  }
}

TEST_F(PictureBoxTest, ASizeThatIsNoneIsError380) {
  size(3, 3);
  for (const double measure : {-0.1, -1.0, 32767.5, 32768.0, 1e300, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(errorOf([&] { box_.Width(measure); }), RuntimeError::InvalidPropertyValue) << measure;
    EXPECT_EQ(errorOf([&] { box_.Height(measure); }), RuntimeError::InvalidPropertyValue) << measure;
  }
  EXPECT_EQ(box_.Width(), 3);
  EXPECT_EQ(errorOf([&] { box_.ScaleMode(2); }), RuntimeError::InvalidPropertyValue);
  EXPECT_EQ(box_.ScaleMode(), 1);
}

TEST_F(PictureBoxTest, TooManyPixelsAreError7AndAllStays) {
  box_.AutoRedraw(True);
  size(32767, 1);
  EXPECT_EQ(errorOf([&] { box_.Height(32767); }), RuntimeError::OutOfMemory);
  EXPECT_EQ(box_.Height(), 1);
  EXPECT_EQ(box_.Image()->size(), (PixelSize{32767, 1}));
}

TEST(PictureBoxOnAStandInTest, WhereNoSurfaceCanBeMadeAllStays) {
  platform::fake::Drawing drawing;
  const platform::Override inForce(drawing);
  headless::Form form;
  auto& control = form.add<ControlOfTests>({0, 0, 10, 10});
  {
    PictureBox box(control.surface());
    box.AutoRedraw(True);
    box.AutoSize(True);
    const auto before = pictured({"rg"});
    box.Picture(before);
    drawing.fail("createSurface");
    EXPECT_EQ(errorOf([&] { box.Picture(pictured({"b"})); }), RuntimeError::OutOfMemory);
    EXPECT_EQ(errorOf([&] { box.Width(5); }), RuntimeError::OutOfMemory);
    EXPECT_EQ(box.Picture(), before);
    EXPECT_EQ(box.Width(), 2);
    EXPECT_EQ(shownRows(*box.Image()), (Rows{"rg"}));
    PictureBox other(control.surface());
    other.Width(1);
    other.Height(1);
    EXPECT_EQ(errorOf([&] { other.AutoRedraw(True); }), RuntimeError::OutOfMemory);
    EXPECT_FALSE(other.AutoRedraw());
    EXPECT_EQ(drawing.surfaces(), 1U);
  }
  EXPECT_EQ(drawing.surfaces(), 0U);
}

TEST(PictureBoxOnAStandInTest, ASurfaceGoesBackToTheDrawingThatMadeIt) {
  platform::fake::Drawing drawing;
  headless::Form form;
  PictureBox box(form.add<ControlOfTests>({0, 0, 10, 10}).surface());
  box.AutoRedraw(True);
  box.AutoSize(True);
  box.Picture(pictured({"r"}));
  {
    const platform::Override inForce(drawing);
    box.Picture(pictured({"gg"}));
  }
  EXPECT_EQ(drawing.surfaces(), 1U);
  EXPECT_EQ(shownRows(*box.Image()), (Rows{"gg"}));
  box.Picture(pictured({"b"}));
  EXPECT_EQ(drawing.surfaces(), 0U);
}

}  // namespace
}  // namespace tessaly::tests
