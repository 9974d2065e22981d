// What a composition tells engine and platform, step by step.

#include <gtest/gtest.h>

#include "tests/controls/Figures.h"
#include "tests/controls/RecordingStage.h"

namespace tessaly::tests {
namespace {

const Calls kMeasure{"UserControl.ScaleWidth", "UserControl.ScaleHeight"};

const Calls kLoadMain{"Picture1.AutoRedraw = True", "Picture1.ScaleMode = 3", "Picture1.AutoSize = True",
                      "Picture1.Picture = 40x30",   "Picture1.ScaleWidth",    "Picture1.ScaleHeight"};

const Calls kBeginSurface{"UserControl.Cls", "UserControl.AutoRedraw = True", "UserControl.ScaleMode = 3"};

class CompositionOrderTest : public testing::Test {
 protected:
  CompositionOrderTest() {
    control_.Picture(slope({40, 30}, 7));
    stage_.take();
  }

  Calls composition() {
    return stage_.callsOf([this] { transparentBitmapPeer::composeImage(control_); });
  }

  RecordingStage stage_;
  transparentBitmap& control_ = stage_.add();
};

TEST_F(CompositionOrderTest, OnTheSurfaceInTheMiddle) {
  EXPECT_EQ(composition(),
            joined({kMeasure,
                    kLoadMain,
                    kBeginSurface,
                    {"TransparentBlt UserControl 30,25 40x30 from Picture1 0,0 40x30 key &HFF00FF",
                     "UserControl.Refresh"}}));
}

TEST_F(CompositionOrderTest, OnTheSurfaceScaled) {
  control_.withBorder(3);
  control_.maskColor(0x123456);
  control_.AutoResize(True);
  EXPECT_EQ(composition(),
            joined({kMeasure,
                    kLoadMain,
                    kBeginSurface,
                    {"TransparentBlt UserControl 3,3 94x74 from Picture1 0,0 40x30 key &H123456",
                     "UserControl.Refresh"}}));
}

TEST_F(CompositionOrderTest, OverlaysComeInTheirOrderEachWithItsOwnKey) {
  control_.AddBitmap(slope({10, 8}, 1), 0, 0x000001);
  control_.AddBitmap(slope({6, 4}, 2), 8, static_cast<OLE_COLOR>(0x80000005));
  EXPECT_EQ(composition(),
            joined({kMeasure,
                    kLoadMain,
                    kBeginSurface,
                    {"TransparentBlt UserControl 30,25 40x30 from Picture1 0,0 40x30 key &HFF00FF",
                     "Picture2.AutoRedraw = True", "Picture2.ScaleMode = 3", "Picture2.Picture = 10x8",
                     "Picture2.AutoSize = True", "Picture2.ScaleWidth", "Picture2.ScaleHeight",
                     "TransparentBlt UserControl 0,0 10x8 from Picture2 0,0 10x8 key &H1",
                     "Picture2.AutoRedraw = True", "Picture2.ScaleMode = 3", "Picture2.Picture = 6x4",
                     "Picture2.AutoSize = True", "Picture2.ScaleWidth", "Picture2.ScaleHeight",
                     "TransparentBlt UserControl 94,76 6x4 from Picture2 0,0 6x4 key &H80000005",
                     "UserControl.Refresh"}}));
}

TEST_F(CompositionOrderTest, WithoutAPictureTheSurfaceIsClearedAndNothingMore) {
  control_.AddBitmap(slope({10, 8}, 1), 0, 0);
  control_.Picture(nullptr);
  EXPECT_EQ(composition(), joined({kMeasure, {"UserControl.Cls"}}));
  control_.Picture(slope({40, 30}, 7));
  control_.enabled(False);
  control_.disabledPicture(nullptr);
  EXPECT_EQ(composition(), joined({kMeasure, {"UserControl.Cls"}}));
}

TEST_F(CompositionOrderTest, WithoutAPictureNoTargetIsTouched) {
  control_.Picture(nullptr);
  EXPECT_EQ(stage_.callsOf([this] { control_.resultPicture(); }),
            joined({kMeasure, {"UserControl.Cls", "result.Image"}}));
}

TEST_F(CompositionOrderTest, ADisabledControlLoadsItsOtherPicture) {
  control_.disabledPicture(slope({20, 10}, 9));
  control_.enabled(False);
  EXPECT_EQ(composition(),
            joined({kMeasure,
                    {"Picture1.AutoRedraw = True", "Picture1.ScaleMode = 3", "Picture1.AutoSize = True",
                     "Picture1.Picture = 20x10", "Picture1.ScaleWidth", "Picture1.ScaleHeight"},
                    kBeginSurface,
                    {"TransparentBlt UserControl 40,35 20x10 from Picture1 0,0 20x10 key &HFF00FF",
                     "UserControl.Refresh"}}));
}

TEST_F(CompositionOrderTest, APictureWithoutAnImageIsShownAsAnyOther) {
  RecordingStage fresh;
  fresh.add();
  EXPECT_EQ(
      fresh.take(),
      joined(
          {{"new UserControl", "new result", "new Picture1", "new Picture2", "new Line1(0)", "new Line1(1)",
            "new Line1(2)", "new Line1(3)", "new Timer1", "new Timer2", "new timerAutoClick",
            "UserControl.ScaleMode = 3", "result.BackColor = &H80000005", "result.ScaleMode = 3",
            "Picture1.ScaleMode = 1", "Picture2.ScaleMode = 1", "Timer1.Enabled = True",
            // InitProperties, which only sets two colours, and then the first Resize.
            "UserControl.BackColor = &H0", "result.BackColor = &H0"},
           kMeasure,
           {"Picture1.AutoRedraw = True", "Picture1.ScaleMode = 3", "Picture1.AutoSize = True",
            "Picture1.Picture = 0x0", "Picture1.ScaleWidth", "Picture1.ScaleHeight"},
           kBeginSurface,
           {"TransparentBlt UserControl 50,40 0x0 from none 0,0 0x0 key &HFF00FF", "UserControl.Refresh"}}));
}

TEST_F(CompositionOrderTest, OnATargetOfTheNaturalSize) {
  control_.backcolor(0xABCDEF);
  control_.withBorder(3);
  EXPECT_EQ(
      stage_.callsOf([this] { control_.resultPicture(); }),
      joined({kMeasure,
              kLoadMain,
              {"Picture1.Width", "result.Width = 40", "Picture1.Height", "result.Height = 30",
               "result.ScaleWidth", "result.ScaleHeight", "UserControl.BackColor = &HFF",
               "result.AutoRedraw = True", "result.ScaleMode = 3", "CreateSolidBrush &HABCDEF",
               "SelectObject result brush", "FillRect result 0,0 40x30 brush",
               "SelectObject result old brush", "DeleteObject brush",
               "TransparentBlt result 0,0 40x30 from Picture1 0,0 40x30 key &HFF00FF", "result.Image"}}));
}

TEST_F(CompositionOrderTest, OnATargetOfAnotherSizeWithOverlays) {
  control_.AddBitmap(slope({10, 8}, 1), 4, 0x000001);
  EXPECT_EQ(stage_.callsOf([this] { control_.resultPictureWithWidth(200, 0); }),
            joined({kMeasure,
                    kLoadMain,
                    {"result.Width = 200",
                     "Picture1.Height",
                     "result.Height = 30",
                     "result.ScaleWidth",
                     "result.ScaleHeight",
                     "UserControl.BackColor = &HFF",
                     "result.AutoRedraw = True",
                     "result.ScaleMode = 3",
                     "CreateSolidBrush &H0",
                     "SelectObject result brush",
                     "FillRect result 0,0 200x30 brush",
                     "SelectObject result old brush",
                     "DeleteObject brush",
                     "TransparentBlt result 0,0 200x30 from Picture1 0,0 40x30 key &HFF00FF",
                     "Picture2.AutoRedraw = True",
                     "Picture2.ScaleMode = 3",
                     "Picture2.Picture = 10x8",
                     "Picture2.AutoSize = True",
                     "Picture2.ScaleWidth",
                     "Picture2.ScaleHeight",
                     "TransparentBlt result 95,11 10x8 from Picture2 0,0 10x8 key &H1",
                     "result.Image"}}));
}

TEST_F(CompositionOrderTest, APaintComposesTheSurface) {
  const Calls composed = composition();
  EXPECT_EQ(stage_.callsOf([this] { transparentBitmapPeer::Paint(control_); }), composed);
}

TEST_F(CompositionOrderTest, AFailingStepEndsItWhereItStands) {
  stage_.log().fail("Picture1.AutoSize = True", RuntimeError::OutOfMemory);
  EXPECT_EQ(composition(), joined({kMeasure,
                                   {"Picture1.AutoRedraw = True", "Picture1.ScaleMode = 3",
                                    "Picture1.AutoSize = True", "error 7"}}));
}

TEST_F(CompositionOrderTest, AFailingBrushIsStillGivenBack) {
  stage_.log().fail("FillRect result 0,0 40x30 brush", RuntimeError::OutOfMemory);
  const Calls calls = stage_.callsOf([this] { EXPECT_THROW(control_.resultPicture(), RuntimeError); });
  EXPECT_EQ(
      Calls(calls.end() - 3, calls.end()),
      (Calls{"FillRect result 0,0 40x30 brush", "SelectObject result old brush", "DeleteObject brush"}));
}

TEST_F(CompositionOrderTest, ABrushThatCannotBeSelectedIsStillDeleted) {
  stage_.log().fail("SelectObject result brush", RuntimeError::OutOfMemory);
  const Calls calls = stage_.callsOf([this] { control_.resultPicture(); });
  EXPECT_EQ(Calls(calls.end() - 3, calls.end()),
            (Calls{"SelectObject result brush", "DeleteObject brush", "error 7"}));
}

}  // namespace
}  // namespace tessaly::tests
