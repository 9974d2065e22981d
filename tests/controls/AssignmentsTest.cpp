// What each assignment does, in the order of it, and that the container hears of it last.

#include <gtest/gtest.h>
#include <algorithm>

#include "tests/controls/Figures.h"
#include "tests/controls/RecordingStage.h"
#include "tests/support/Errors.h"
#include "tests/support/Print.h"

namespace tessaly::tests {
namespace {

class AssignmentsTest : public testing::Test {
 protected:
  AssignmentsTest() {
    control_.Picture(slope({40, 30}, 7));
    control_.disabledPicture(slope({20, 10}, 8));
  }

  Calls composition() {
    return stage_.callsOf([this] { transparentBitmapPeer::composeImage(control_); });
  }
  Calls resize() {
    return stage_.callsOf([this] { transparentBitmapPeer::Resize(control_); });
  }

  enum class Draws { Nothing, Composition, Resize };

  Calls drawing(Draws draws) {
    if (draws == Draws::Nothing) return {};
    return draws == Draws::Resize ? resize() : composition();
  }

  /// Assigns twice, since the same value again repeats all the steps.
  template <class Assignment>
  void expectCalls(const Assignment& assignment, const Calls& before, Draws draws, const std::string& name) {
    for (int time = 0; time < 2; ++time) {
      const Calls calls = stage_.callsOf(assignment);
      EXPECT_EQ(calls, joined({before, drawing(draws), {"UserControl.PropertyChanged " + name}}));
    }
  }

  template <class Assignment>
  void expectRecomposes(const Assignment& assignment, const std::string& name) {
    expectCalls(assignment, {}, Draws::Composition, name);
  }
  template <class Assignment>
  void expectOnlyTells(const Assignment& assignment, const std::string& name) {
    expectCalls(assignment, {}, Draws::Nothing, name);
  }

  RecordingStage stage_;
  transparentBitmap& control_ = stage_.add();
};

TEST_F(AssignmentsTest, OfPictureRecomposes) {
  const auto picture = slope({12, 12}, 1);
  expectRecomposes([&] { control_.Picture(picture); }, "Picture");
  EXPECT_EQ(control_.Picture(), picture);
  expectRecomposes([&] { control_.Picture(nullptr); }, "Picture");
  EXPECT_EQ(control_.Picture(), nullptr);
}

TEST_F(AssignmentsTest, OfDisabledPictureRecomposesThoughItIsNotShown) {
  const auto picture = slope({12, 12}, 1);
  expectRecomposes([&] { control_.disabledPicture(picture); }, "disabledPicture");
  EXPECT_EQ(control_.disabledPicture(), picture);
}

TEST_F(AssignmentsTest, OfMaskColorRecomposes) {
  expectRecomposes([&] { control_.maskColor(static_cast<OLE_COLOR>(0x80000005)); }, "maskColor");
  EXPECT_EQ(control_.maskColor(), static_cast<OLE_COLOR>(0x80000005));
}

TEST_F(AssignmentsTest, OfBackcolorSetsBothBackgroundsFirst) {
  expectCalls([&] { control_.backcolor(0xC0C0C0); },
              {"UserControl.BackColor = &HC0C0C0", "result.BackColor = &HC0C0C0"}, Draws::Composition,
              "BackColor");
  EXPECT_EQ(control_.backcolor(), 0xC0C0C0);
}

TEST_F(AssignmentsTest, OfWithBorderRunsTheResizeHandler) {
  for (const Long width : {3, 0, -3}) {
    expectCalls([&] { control_.withBorder(width); }, {}, Draws::Resize, "WithBorder");
    EXPECT_EQ(control_.withBorder(), width);
  }
}

TEST_F(AssignmentsTest, OfAutoResizeRecomposes) {
  expectRecomposes([&] { control_.AutoResize(True); }, "AutoResize");
  EXPECT_EQ(control_.AutoResize(), True);
}

TEST_F(AssignmentsTest, OfStretchRunsTheResizeHandler) {
  control_.stretch(True);
  expectCalls([&] { control_.stretch(True); }, {}, Draws::Resize, "stretch");
  EXPECT_EQ(control_.stretch(), True);
  expectCalls([&] { control_.stretch(False); }, {}, Draws::Resize, "stretch");
  EXPECT_EQ(control_.stretch(), False);
}

TEST_F(AssignmentsTest, OfTheClicksPropertiesOnlyTellTheContainer) {
  expectOnlyTells([&] { control_.automaticClick(True); }, "automaticClick");
  expectOnlyTells([&] { control_.automaticClickTiming(-7); }, "automaticClickTiming");
  expectOnlyTells([&] { control_.automaticClickFirstTiming(70000); }, "automaticClickFirstTiming");
  EXPECT_EQ(control_.automaticClick(), True);
  EXPECT_EQ(control_.automaticClickTiming(), -7);
  EXPECT_EQ(control_.automaticClickFirstTiming(), 70000);
}

TEST_F(AssignmentsTest, OfEnabledHidesTheBorderFirstWhereThereIsOne) {
  control_.withBorder(3);
  expectCalls([&] { control_.enabled(False); },
              {"Line1(0).BorderWidth = 3", "Line1(0).Visible = False", "Line1(1).BorderWidth = 3",
               "Line1(1).Visible = False", "Line1(2).BorderWidth = 3", "Line1(2).Visible = False",
               "Line1(3).BorderWidth = 3", "Line1(3).Visible = False"},
              Draws::Composition, "enabled");
  expectRecomposes([&] { control_.enabled(True); }, "enabled");
}

TEST_F(AssignmentsTest, OfEnabledWithoutABorderShowsNoneAndEndsThePressAllTheSame) {
  for (const Long width : {0, -3}) {
    control_.withBorder(width);
    transparentBitmapPeer::setPressed(control_, True);
    expectRecomposes([&] { control_.enabled(False); }, "enabled");
    EXPECT_EQ(transparentBitmapPeer::isPressed(control_), False);
  }
}

TEST_F(AssignmentsTest, OfEnabledEndsThePressAndLeavesTheHover) {
  control_.withBorder(3);
  transparentBitmapPeer::setPressed(control_, True);
  transparentBitmapPeer::setHovered(control_, True);
  control_.enabled(False);
  EXPECT_EQ(transparentBitmapPeer::isPressed(control_), False);
  EXPECT_EQ(transparentBitmapPeer::isHovered(control_), True);
}

TEST_F(AssignmentsTest, OfEnabledTrueLeavesThePress) {
  transparentBitmapPeer::setPressed(control_, True);
  control_.enabled(True);
  EXPECT_EQ(transparentBitmapPeer::isPressed(control_), True);
}

TEST_F(AssignmentsTest, TakeAnyNumberButZeroForTrue) {
  control_.enabled(Boolean(2));
  EXPECT_EQ(control_.enabled(), Boolean(2));
  control_.withBorder(3);
  control_.AutoResize(Boolean(2));
  const Calls calls = composition();
  EXPECT_EQ(calls[calls.size() - 2],
            "TransparentBlt UserControl 3,3 94x74 from Picture1 0,0 40x30 key &HFF00FF");
}

TEST_F(AssignmentsTest, OfEnabledWhoseBorderOverflowsKeepTheFieldAndNothingMore) {
  control_.withBorder(32768);
  transparentBitmapPeer::setPressed(control_, True);
  EXPECT_EQ(stage_.callsOf([&] { control_.enabled(False); }), Calls{"error 6"});
  EXPECT_EQ(control_.enabled(), False);
  EXPECT_EQ(transparentBitmapPeer::isPressed(control_), True);
}

TEST_F(AssignmentsTest, TouchNeitherTimersNorTheHover) {
  control_.withBorder(3);
  transparentBitmapPeer::setHovered(control_, True);
  const Calls calls = stage_.callsOf([&] {
    control_.automaticClick(True);
    control_.automaticClickTiming(1);
    control_.automaticClickFirstTiming(1);
    control_.withBorder(0);
    control_.enabled(False);
  });
  for (const std::string& call : calls) {
    EXPECT_NE(call.compare(0, 5, "Timer"), 0) << call;
    EXPECT_NE(call.compare(0, 5, "timer"), 0) << call;
  }
  EXPECT_EQ(transparentBitmapPeer::isHovered(control_), True);
}

TEST_F(AssignmentsTest, ThatFailTellNobodyAndKeepTheValue) {
  const auto picture = slope({12, 12}, 1);
  stage_.log().fail("Picture1.Picture = 12x12", RuntimeError::OutOfMemory);
  const auto before = stage_.place().changedProperties();
  EXPECT_EQ(errorOf([&] { control_.Picture(picture); }), RuntimeError::OutOfMemory);
  EXPECT_EQ(control_.Picture(), picture);
  EXPECT_EQ(stage_.place().changedProperties(), before);
}

TEST_F(AssignmentsTest, AddAndClearBitmapsRecomposeAndTellNobody) {
  const auto overlay = slope({6, 4}, 1);
  const Calls added = stage_.callsOf([&] { control_.AddBitmap(overlay, 8, 0); });
  EXPECT_EQ(added, composition());
  EXPECT_EQ(overlay.use_count(), 3) << "the overlay is shared with the list and the work surface";
  const Calls cleared = stage_.callsOf([&] { control_.ClearBitmaps(); });
  EXPECT_EQ(cleared, composition());
  EXPECT_EQ(transparentBitmapPeer::bitmapCount(control_), 0U);
  EXPECT_EQ(overlay.use_count(), 2);
}

TEST_F(AssignmentsTest, OfResultPictureAlwaysFail) {
  const auto picture = slope({12, 12}, 1);
  const auto before = control_.resultPicture();
  EXPECT_EQ(stage_.callsOf([&] { control_.resultPicture(picture); }), Calls{"error 382"});
  stage_.form().setUserMode(false);
  EXPECT_EQ(stage_.callsOf([&] { control_.resultPicture(picture); }), Calls{"error 383"});
  EXPECT_TRUE(std::ranges::equal(control_.resultPicture()->pixels(), before->pixels()));
}

}  // namespace
}  // namespace tessaly::tests
