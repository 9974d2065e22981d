// Input at its edges: which buttons count, what a border and `enabled` change, and what the host hears.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/controls/InputFixture.h"

namespace tessaly::tests {
namespace {

using InputTest = InputFixture;

/// Writes every mouse event down, as "Down 1 0 5,5".
class MouseLog {
 public:
  explicit MouseLog(transparentBitmap& control) {
    control.events.MouseMove = noting("Move");
    control.events.MouseDown = noting("Down");
    control.events.MouseUp = noting("Up");
  }

  std::vector<std::string> events;

 private:
  transparentBitmapEvents::Mouse noting(const std::string& name) {
    return [this, name](std::int16_t& button, std::int16_t& shift, float& x, float& y) {
      events.push_back(name + " " + std::to_string(button) + " " + std::to_string(shift) + " " +
                       std::to_string(static_cast<int>(x)) + "," + std::to_string(static_cast<int>(y)));
    };
  }
};

TEST_F(InputTest, EveryMouseEventGoesToTheHostAlsoWhileDisabled) {
  for (const bool isEnabled : {true, false}) {
    control_.enabled(isEnabled);
    MouseLog log(control_);
    stage_.form.movePointer({25, 15}, kShift);
    stage_.form.press(kRight, kShift);
    stage_.form.movePointer({26, 16});
    stage_.form.release(kRight);
    EXPECT_EQ(log.events,
              (std::vector<std::string>{"Move 0 1 5,5", "Down 2 1 5,5", "Move 2 0 6,6", "Up 2 0 6,6"}));
    control_.events.MouseMove = nullptr;
    control_.events.MouseDown = nullptr;
    control_.events.MouseUp = nullptr;
  }
}

TEST_F(InputTest, ADisabledControlRaisesNothingElse) {
  control_.enabled(False);
  stage_.moveOn();
  stage_.click();
  stage_.wait(5000);
  expect("idle", "");
}

TEST_F(InputTest, WithoutABorderNothingIsHoveredAndOnlyAutomaticClicksCome) {
  for (const Long width : {0, -2}) {
    control_.withBorder(width);
    stage_.moveOn();
    stage_.wait(5000);
    expect("idle", "");
    control_.automaticClick(False);
    stage_.press();
    expect("pressed", "");
    stage_.release();
    expect("idle", "");
    control_.automaticClick(True);
    stage_.press();
    expect("pressed repeating", "click");
    stage_.wait(500);
    expect("pressed repeating", "click");
    stage_.release();
    expect("idle", "");
  }
}

TEST_F(InputTest, OnlyALeftPressWithoutAKeyCounts) {
  hover();
  for (const MouseState button : std::initializer_list<MouseState>{2, 4, 3}) {
    stage_.place.userControl().mouseDown(button, 0, {5, 5});
    stage_.place.userControl().mouseUp(button, 0, {5, 5});
  }
  for (const MouseState shift : std::initializer_list<MouseState>{1, 2, 4}) {
    stage_.form.press(kLeft, shift);
    stage_.form.release(kLeft, shift);
  }
  expect("hovered raised polling counting", "");
}

TEST_F(InputTest, TheReleaseOfAnyButtonEndsThePressAndClicks) {
  hover();
  stage_.press();
  stage_.form.press(kRight);
  stage_.form.release(kRight, kShift);
  expect("hovered raised polling counting", "click");
  stage_.release();
  expect("hovered raised polling counting", "");
}

TEST_F(InputTest, TheReleaseOnThePixelBeyondTheEdgeIsAClick) {
  hover();
  stage_.press();
  stage_.form.movePointer({60, 40});
  stage_.release();
  expect("hovered raised polling counting", "click");
  stage_.press();
  expect("hovered raised polling counting", "");
}

TEST_F(InputTest, DisablingAHoverLeavesThePollWithoutEffectUntilItIsEnabledAgain) {
  hover();
  control_.enabled(False);
  stage_.moveOff();
  stage_.wait(200);
  expect("hovered polling counting", "");
  control_.enabled(True);
  stage_.wait(50);
  expect("idle", "");
}

TEST_F(InputTest, EnablingAgainUnderThePointerKeepsTheHoverAndTheBorderHidden) {
  hover();
  control_.enabled(False);
  control_.enabled(True);
  stage_.wait(200);
  stage_.moveOn();
  expect("hovered polling counting", "");
  stage_.click();
  expect("hovered raised polling counting", "click");
}

TEST_F(InputTest, DisablingAHoverDoesNotStopTheRest) {
  hover();
  control_.enabled(False);
  stage_.wait(1000);
  expect("hovered polling rested", "rested");
}

TEST_F(InputTest, ABorderTakenAwayDuringAHoverLeavesThePollWithoutEffect) {
  hover();
  control_.withBorder(0);
  stage_.moveOff();
  stage_.wait(200);
  expect("hovered raised polling counting", "");
  control_.withBorder(2);
  stage_.wait(50);
  expect("idle", "");
}

TEST_F(InputTest, AHiddenControlDoesNotRestUntilItIsShown) {
  hover();
  stage_.place.show(false);
  stage_.wait(10000);
  EXPECT_EQ(stage_.heard(), "");
  stage_.place.show(true);
  stage_.wait(1000);
  EXPECT_EQ(stage_.heard(), "rested");
}

}  // namespace
}  // namespace tessaly::tests
