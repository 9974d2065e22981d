// What the Resize handler tells the engine, step by step, and what an assigned size does inside of it.

#include <gtest/gtest.h>

#include "tessaly/forms/Screen.h"
#include "tests/controls/Figures.h"
#include "tests/controls/RecordingStage.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

const Calls kAskPicture{"Picture1.AutoRedraw = True", "Picture1.ScaleMode = 3", "Picture1.AutoSize = True",
                        "Picture1.Width", "Picture1.Height"};

/// A composition of a picture of 40 by 30 that has its place, which the blit tells, and its size.
Calls composition(const std::string& place) {
  return {"UserControl.ScaleWidth",
          "UserControl.ScaleHeight",
          "Picture1.AutoRedraw = True",
          "Picture1.ScaleMode = 3",
          "Picture1.AutoSize = True",
          "Picture1.Picture = 40x30",
          "Picture1.ScaleWidth",
          "Picture1.ScaleHeight",
          "UserControl.Cls",
          "UserControl.AutoRedraw = True",
          "UserControl.ScaleMode = 3",
          "TransparentBlt UserControl " + place + " 40x30 from Picture1 0,0 40x30 key &HFF00FF",
          "UserControl.Refresh"};
}

Calls borderAt(Long right, Long bottom) {
  const std::string x = std::to_string(right);
  const std::string y = std::to_string(bottom);
  const std::string above = std::to_string(bottom - 1);
  return {"UserControl.ScaleWidth", "UserControl.ScaleHeight", "Line1(0).X1 = 0",    "Line1(0).Y1 = 0",
          "Line1(0).X2 = " + x,     "Line1(0).Y2 = 0",         "Line1(1).X1 = 0",    "Line1(1).Y1 = " + y,
          "Line1(1).X2 = " + x,     "Line1(1).Y2 = " + y,      "Line1(2).X1 = 0",    "Line1(2).Y1 = 0",
          "Line1(2).X2 = 0",        "Line1(2).Y2 = " + above,  "Line1(3).X1 = " + x, "Line1(3).Y1 = 1",
          "Line1(3).X2 = " + x,     "Line1(3).Y2 = " + y};
}

class ResizeOrderTest : public testing::Test {
 protected:
  ResizeOrderTest() { control_.Picture(slope({40, 30}, 7)); }

  Calls resize() {
    return stage_.callsOf([this] { transparentBitmapPeer::Resize(control_); });
  }

  PixelSize size() { return stage_.place().size(); }

  Screen ownScreen_;
  RecordingStage stage_;
  transparentBitmap& control_ = stage_.add();
};

TEST_F(ResizeOrderTest, WithoutABorderTheLinesAreNotTouched) {
  EXPECT_EQ(resize(), composition("30,25"));
  control_.withBorder(-3);
  EXPECT_EQ(resize(), composition("30,25"));
}

TEST_F(ResizeOrderTest, WithABorderTheLinesArePlacedBeforeTheComposition) {
  control_.withBorder(3);
  EXPECT_EQ(resize(), joined({borderAt(99, 79), composition("27,22")}));
}

TEST_F(ResizeOrderTest, AWidthThatDiffersIsAssignedAndTheInnerRunDoesTheRest) {
  control_.withBorder(3);
  EXPECT_EQ(stage_.callsOf([this] { control_.stretch(True); }),
            joined({kAskPicture,
                    {"UserControl.Width", "UserControl.Width = 690"},
                    kAskPicture,
                    {"UserControl.Width", "UserControl.Height", "UserControl.Height = 540"},
                    kAskPicture,
                    {"UserControl.Width", "UserControl.Height"},
                    borderAt(45, 35),
                    // It fills the area exactly, so it lies at the border's inside.
                    composition("3,3"),
                    {"UserControl.PropertyChanged stretch"}}));
  EXPECT_EQ(size(), (PixelSize{46, 36}));
}

TEST_F(ResizeOrderTest, AHeightThatDiffersAloneIsAssignedAlone) {
  stage_.place().drag({40, 80});
  EXPECT_EQ(stage_.callsOf([this] { control_.stretch(True); }),
            joined({kAskPicture,
                    {"UserControl.Width", "UserControl.Height", "UserControl.Height = 450"},
                    kAskPicture,
                    {"UserControl.Width", "UserControl.Height"},
                    composition("0,0"),
                    {"UserControl.PropertyChanged stretch"}}));
}

TEST_F(ResizeOrderTest, ASizeThatFitsIsLeft) {
  control_.stretch(True);
  EXPECT_EQ(resize(), joined({kAskPicture, {"UserControl.Width", "UserControl.Height"}, composition("0,0")}));
}

TEST_F(ResizeOrderTest, AStretchedControlThatIsDraggedTakesItsSizeBack) {
  control_.stretch(True);
  stage_.place().drag({70, 70});
  EXPECT_EQ(size(), (PixelSize{40, 30}));
}

TEST_F(ResizeOrderTest, ANewPictureDoesNotChangeTheSizeBeforeTheNextResize) {
  control_.stretch(True);
  control_.Picture(slope({50, 20}, 7));
  EXPECT_EQ(size(), (PixelSize{40, 30}));
  transparentBitmapPeer::Resize(control_);
  EXPECT_EQ(size(), (PixelSize{50, 20}));
}

TEST_F(ResizeOrderTest, ANegativeBorderMakesTheControlSmallerThanItsPicture) {
  control_.stretch(True);
  control_.withBorder(-4);
  EXPECT_EQ(control_.withBorder(), -4);
  EXPECT_EQ(size(), (PixelSize{32, 22}));
}

TEST_F(ResizeOrderTest, ABorderThatLeavesNoSizeIsAnInvalidOne) {
  control_.stretch(True);
  EXPECT_EQ(errorOf([this] { control_.withBorder(-21); }), RuntimeError::InvalidPropertyValue);
  EXPECT_EQ(size(), (PixelSize{40, 30}));
  EXPECT_EQ(control_.withBorder(), -21);
}

TEST_F(ResizeOrderTest, ABorderThatMakesTheSizeTooLargeIsAnInvalidOne) {
  control_.stretch(True);
  EXPECT_EQ(errorOf([this] { control_.withBorder(16384); }), RuntimeError::InvalidPropertyValue);
  EXPECT_EQ(size(), (PixelSize{40, 30}));
}

TEST_F(ResizeOrderTest, ASizeForWhichThereIsNoMemoryIsAnError) {
  stage_.place().drag({40, 30000});
  EXPECT_EQ(errorOf([this] {
              control_.stretch(True);
              control_.withBorder(16000);
            }),
            RuntimeError::OutOfMemory);
}

TEST_F(ResizeOrderTest, TwipsBeyond32BitsOverflow) {
  control_.stretch(True);
  EXPECT_EQ(errorOf([this] { control_.withBorder(0x3FFFFFFF); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([this] { control_.withBorder(-0x40000000); }), RuntimeError::Overflow);
}

TEST_F(ResizeOrderTest, ABorderWhoseDoubleNeedsMoreThan32BitsOverflowsWhereItIsDoubled) {
  EXPECT_EQ(errorOf([this] { control_.withBorder(0x40000000); }), RuntimeError::Overflow);
  EXPECT_EQ(control_.withBorder(), 0x40000000);
  // Nothing is doubled for a negative border, but the size that the picture wants is made with it.
  EXPECT_EQ(errorOf([this] { control_.withBorder(-0x40000001); }), 0);
  EXPECT_EQ(errorOf([this] { control_.stretch(True); }), RuntimeError::Overflow);
  EXPECT_EQ(control_.stretch(), True);
}

TEST_F(ResizeOrderTest, AnErrorComesBeforeTheContainerIsTold) {
  const auto before = stage_.place().changedProperties();
  EXPECT_EQ(errorOf([this] { control_.withBorder(0x40000000); }), RuntimeError::Overflow);
  EXPECT_EQ(stage_.place().changedProperties(), before);
}

/// A screen on which no size of the control fits the picture's.
struct FineScreen final : Screen {
  double TwipsPerPixelX() const override { return 14.5; }
};

TEST_F(ResizeOrderTest, ASizeThatTheContainerRoundsIsAssignedOnceAndOnceWithin) {
  FineScreen screen;
  stage_.form().setScreen(screen);
  EXPECT_EQ(
      stage_.callsOf([this] { control_.stretch(True); }),
      joined({kAskPicture,
              {"UserControl.Width", "UserControl.Width = 580"},
              kAskPicture,
              {"UserControl.Width", "UserControl.Width = 580", "UserControl.PropertyChanged stretch"}}));
  EXPECT_EQ(size(), (PixelSize{39, 80}));
  stage_.form().setScreen(ownScreen_);
}

}  // namespace
}  // namespace tessaly::tests
