// Presses, the capture that they take, and the labels that they fall on.

#include <gtest/gtest.h>
#include <algorithm>

#include "tessaly/forms/Label.h"
#include "tessaly/forms/headless/Form.h"
#include "tests/forms/ControlOfTests.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

using Events = std::vector<std::string>;

class MouseTest : public testing::Test {
 protected:
  MouseTest() {
    form_.movePointer({12, 13});
    control_.events.clear();
  }

  headless::Form form_;
  ControlOfTests& control_ = form_.add<ControlOfTests>({10, 10, 20, 20});
  ControlOfTests& other_ = form_.add<ControlOfTests>({40, 10, 20, 20});
  headless::Place& place_ = form_.placeOf(control_);
};

TEST_F(MouseTest, APressTakesTheMouseBeforeItsEventAndTheReleaseLetsGoBeforeIts) {
  std::vector<bool> captured;
  control_.on["MouseDown"] = [&] { captured.push_back(place_.hasCapture()); };
  control_.on["MouseUp"] = [&] { captured.push_back(place_.hasCapture()); };
  form_.press();
  captured.push_back(place_.hasCapture());
  form_.release();
  EXPECT_EQ(captured, (std::vector<bool>{true, true, false}));
}

TEST_F(MouseTest, WhileAButtonIsHeldAllGoesToTheControlThatTookIt) {
  other_.events.clear();
  form_.press();
  form_.movePointer({45, 9});
  form_.press(2);
  form_.release(1);
  EXPECT_TRUE(place_.hasCapture());
  form_.release(2);
  form_.movePointer({45, 11});
  EXPECT_EQ(control_.events, (Events{"MouseDown 1 0 2,3", "MouseMove 1 0 35,-1", "MouseDown 2 0 35,-1",
                                     "MouseUp 1 0 35,-1", "MouseUp 2 0 35,-1"}));
  EXPECT_EQ(other_.events, (Events{"MouseMove 0 0 5,1"}));
}

TEST_F(MouseTest, ASecondPressOfAHeldButtonNeedsNoSecondRelease) {
  form_.press();
  form_.press();
  form_.release();
  EXPECT_FALSE(place_.hasCapture());
}

TEST_F(MouseTest, AReleaseWithoutAPressIsToldToo) {
  form_.release(2);
  EXPECT_EQ(control_.events, (Events{"MouseUp 2 0 2,3"}));
}

TEST_F(MouseTest, AControlThatIsHiddenLosesTheMouse) {
  form_.press();
  place_.show(false);
  EXPECT_FALSE(place_.hasCapture());
  form_.movePointer({13, 13});
  form_.release();
  EXPECT_EQ(control_.events, (Events{"MouseDown 1 0 2,3"}));
  place_.show(true);
  form_.press();
  EXPECT_TRUE(place_.hasCapture());
  form_.release();
  EXPECT_FALSE(place_.hasCapture());
}

TEST_F(MouseTest, ThePointersPlaceIsInTheControlsScale) {
  control_.surface().ScaleMode(1);
  form_.movePointer({11, 12});
  EXPECT_EQ(control_.events, (Events{"MouseMove 0 0 15,30"}));
}

class LabelTest : public MouseTest {
 protected:
  LabelTest() {
    label_.Move(2, 3, 10, 5);
    label_.onMouseDown = [this](MouseState button, MouseState shift, float x, float y) {
      presses_.push_back({static_cast<float>(button), static_cast<float>(shift), x, y});
    };
  }

  void pressAt(Long x, Long y) {
    form_.movePointer({10 + x, 10 + y});
    form_.press(1, 2);
    form_.release();
  }

  Label label_{control_.surface()};
  std::vector<std::vector<float>> presses_;
};

TEST_F(LabelTest, TakesPressesWhereItLiesButNoMoves) {
  control_.events.clear();
  pressAt(2, 3);
  pressAt(11, 7);
  EXPECT_EQ(presses_, (std::vector<std::vector<float>>{{1, 2, 0, 0}, {1, 2, 9, 4}}));
  EXPECT_EQ(control_.events,
            (Events{"MouseMove 0 0 2,3", "MouseUp 1 0 2,3", "MouseMove 0 0 11,7", "MouseUp 1 0 11,7"}));
}

TEST_F(LabelTest, LeavesPressesBesideItToTheControl) {
  for (const PixelPoint& point : {PixelPoint{1, 3}, {2, 2}, {12, 3}, {2, 8}}) pressAt(point.x, point.y);
  EXPECT_TRUE(presses_.empty());
  EXPECT_EQ(std::count_if(control_.events.begin(), control_.events.end(),
                          [](const std::string& event) { return event.starts_with("MouseDown"); }),
            4);
}

TEST_F(LabelTest, TheLaterOneLiesAbove) {
  Label above(control_.surface());
  above.Move(0, 0, 20, 20);
  pressAt(2, 3);
  EXPECT_TRUE(presses_.empty());
}

TEST_F(LabelTest, IsInTheControlsScale) {
  control_.surface().ScaleMode(1);
  label_.Move(15, 15, 15, 15);
  pressAt(1, 1);
  EXPECT_EQ(presses_, (std::vector<std::vector<float>>{{1, 2, 0, 0}}));
}

TEST_F(LabelTest, MayBeDestroyedByItsPress) {
  auto label = std::make_unique<Label>(control_.surface());
  label->Move(0, 0, 20, 20);
  label->onMouseDown = [&, held = std::make_shared<int>(3)](MouseState, MouseState, float, float) {
    label.reset();
    presses_.push_back({static_cast<float>(*held)});
  };
  pressAt(2, 3);
  pressAt(2, 3);
  EXPECT_EQ(presses_.size(), 2U);
}

TEST_F(LabelTest, ShowsItsToolTip) {
  label_.ToolTipText(u"Home");
  EXPECT_EQ(place_.toolTip(), u"Home");
  label_.ToolTipText(u"");
  EXPECT_EQ(place_.toolTip(), u"");
}

TEST_F(LabelTest, AChangeIsShownWhenThereIsTime) {
  const int before = place_.laterRepaints();
  label_.Caption(u"Home");
  label_.Caption(u"Home");
  label_.Alignment(2);
  label_.ForeColor(0xFF0000);
  label_.BackColor(0);
  label_.font({u"Sans", 9, 700, true});
  label_.Move(2, 3, 10, 5);
  label_.Move(0, 0, 1, 1);
  EXPECT_EQ(place_.laterRepaints() - before, 6);
  EXPECT_EQ(place_.repaints(), 0);
  EXPECT_EQ(label_.Caption(), u"Home");
  EXPECT_EQ(label_.Alignment(), 2);
  EXPECT_EQ(label_.font().weight, 700);
}

TEST_F(LabelTest, AMeasureThatIsNoneIsError380AndNothingMoves) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const auto refuses = [](const auto& call) { return errorOf(call) == RuntimeError::InvalidPropertyValue; };
  EXPECT_TRUE(refuses([&] { label_.Width(-1); }));
  EXPECT_TRUE(refuses([&] { label_.Height(std::numeric_limits<double>::quiet_NaN()); }));
  EXPECT_TRUE(refuses([&] { label_.Left(kInfinity); }));
  EXPECT_TRUE(refuses([&] { label_.Top(-kInfinity); }));
  EXPECT_TRUE(refuses([&] { label_.Move(7, 7, 7, -7); }));
  EXPECT_EQ(label_.Left(), 2);
  EXPECT_EQ(label_.Top(), 3);
  EXPECT_EQ(label_.Width(), 10);
  EXPECT_EQ(label_.Height(), 5);
}

}  // namespace
}  // namespace tessaly::tests
