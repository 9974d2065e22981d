// The control's states under the mouse and its timers, each way from one to another.

#include <gtest/gtest.h>

#include "tests/controls/InputFixture.h"

namespace tessaly::tests {
namespace {

class InputTransitionsTest : public InputFixture {
 protected:
  // The states, each as one gets there.
  void rest() {
    hover();
    stage_.wait(1000);
    expect("hovered raised polling rested", "rested");
  }
  void pressOn() {
    hover();
    stage_.press();
    expect("hovered pressed sunken polling counting", "");
  }
  void pressAway() {
    pressOn();
    stage_.moveOff();
    stage_.wait(50);
    expect("pressed sunken", "");
  }
  void pressBack() {
    pressAway();
    stage_.moveOn();
    expect("hovered pressed sunken", "");
  }
  void becomeStale() {
    pressBack();
    stage_.release();
    expect("hovered raised", "click");
  }
};

TEST_F(InputTransitionsTest, ANewControlIsIdle) { expect("idle", ""); }

TEST_F(InputTransitionsTest, IdleByAMoveIsHovering) { hover(); }

TEST_F(InputTransitionsTest, IdleByAPressIsPressedAway) {
  stage_.slipUnderPointer();
  stage_.press();
  expect("pressed sunken", "");
}

TEST_F(InputTransitionsTest, IdleByAnAutomaticPressIsPressedAwayAndClicks) {
  stage_.control.automaticClick(True);
  stage_.slipUnderPointer();
  stage_.press();
  expect("pressed sunken repeating", "click");
}

TEST_F(InputTransitionsTest, HoveringByAMoveCountsAnew) {
  hover();
  stage_.wait(900);
  stage_.moveOn();
  stage_.wait(900);
  expect("hovered raised polling counting", "");
  stage_.wait(100);
  expect("hovered raised polling rested", "rested");
}

TEST_F(InputTransitionsTest, RestedByAMoveStaysRested) {
  rest();
  stage_.moveOn();
  stage_.wait(3000);
  expect("hovered raised polling rested", "");
}

TEST_F(InputTransitionsTest, HoveringByTheRestTimerIsRestedWhereTheWindowIsVisible) {
  hover();
  stage_.place.show(false);
  stage_.wait(2500);
  expect("hovered raised polling counting", "");
  stage_.place.show(true);
  stage_.wait(499);
  expect("hovered raised polling counting", "");
  stage_.wait(1);
  expect("hovered raised polling rested", "rested");
}

TEST_F(InputTransitionsTest, HoveringByThePollIsIdleOnceThePointerHasGone) {
  hover();
  stage_.wait(50);
  expect("hovered raised polling counting", "");
  stage_.moveOff();
  stage_.wait(49);
  expect("hovered raised polling counting", "");
  stage_.wait(1);
  expect("idle", "");
}

TEST_F(InputTransitionsTest, RestedByThePollIsIdleOnceThePointerHasGone) {
  rest();
  stage_.slipAway();
  stage_.wait(50);
  // What it has raised stays known until the next hover begins.
  expect("rested", "");
}

TEST_F(InputTransitionsTest, HoveringByAPressIsPressed) { pressOn(); }

TEST_F(InputTransitionsTest, RestedByAPressIsPressed) {
  rest();
  stage_.press();
  expect("hovered pressed sunken polling rested", "");
}

TEST_F(InputTransitionsTest, HoveringByAnAutomaticPressIsPressedAndClicks) {
  stage_.control.automaticClick(True);
  hover();
  stage_.press();
  expect("hovered pressed sunken polling counting repeating", "click");
}

TEST_F(InputTransitionsTest, PressedByThePollIsPressedAwayOnceThePointerHasGone) { pressAway(); }

TEST_F(InputTransitionsTest, PressedByAReleaseInsideIsHoveringAndClicks) {
  pressOn();
  stage_.release();
  expect("hovered raised polling counting", "click");
}

TEST_F(InputTransitionsTest, PressedByAReleaseInsideIsRestedWhereItWas) {
  rest();
  stage_.press();
  stage_.release();
  expect("hovered raised polling rested", "click");
}

TEST_F(InputTransitionsTest, PressedByAReleaseOutsideIsIdleWithItsTimersRunningOn) {
  pressOn();
  stage_.moveOff();
  stage_.release();
  expect("polling counting", "");
  stage_.wait(999);
  expect("polling counting", "");
  stage_.wait(1);
  expect("polling rested", "rested");
}

TEST_F(InputTransitionsTest, PressedAwayByAMoveIsPressedBack) { pressBack(); }

TEST_F(InputTransitionsTest, PressedAwayByAReleaseIsIdleAndRaisesNothing) {
  pressAway();
  stage_.release();
  expect("idle", "");
}

TEST_F(InputTransitionsTest, PressedAwayByAReleaseOnTheControlIsNoClickEither) {
  stage_.slipUnderPointer();
  stage_.press();
  stage_.release();
  expect("idle", "");
}

TEST_F(InputTransitionsTest, PressedBackByAReleaseInsideIsStaleAndClicks) { becomeStale(); }

TEST_F(InputTransitionsTest, PressedBackByAReleaseOutsideIsIdle) {
  pressBack();
  stage_.slipAway();
  stage_.release();
  expect("idle", "");
}

TEST_F(InputTransitionsTest, PressedByAMoveCountsAnewUnlessRested) {
  pressOn();
  stage_.wait(900);
  stage_.moveOn();
  stage_.wait(900);
  expect("hovered pressed sunken polling counting", "");
  stage_.wait(100);
  expect("hovered pressed sunken polling rested", "rested");
  stage_.moveOn();
  expect("hovered pressed sunken polling rested", "");
}

TEST_F(InputTransitionsTest, PressedBackByAMoveCountsAnewUnlessRested) {
  pressBack();
  stage_.moveOn();
  expect("hovered pressed sunken counting", "");
  stage_.wait(1000);
  expect("hovered pressed sunken rested", "rested");
  stage_.moveOn();
  expect("hovered pressed sunken rested", "");
}

TEST_F(InputTransitionsTest, StaleByAMoveCountsAnewUnlessRested) {
  becomeStale();
  stage_.moveOn();
  expect("hovered raised counting", "");
  stage_.wait(1000);
  expect("hovered raised rested", "rested");
  stage_.moveOn();
  expect("hovered raised rested", "");
}

TEST_F(InputTransitionsTest, StaleStaysWhenThePointerGoesAndComesAgain) {
  becomeStale();
  stage_.moveOff();
  stage_.wait(5000);
  expect("hovered raised", "");
  stage_.moveOn();
  expect("hovered raised counting", "");
}

TEST_F(InputTransitionsTest, StaleByAPressIsPressedBackAndEndsByAReleaseOutside) {
  becomeStale();
  stage_.press();
  expect("hovered pressed sunken", "");
  stage_.moveOff();
  stage_.release();
  // The captured move outside has begun to count.
  expect("counting", "");
  stage_.moveOn();
  expect("hovered raised polling counting", "selected");
}

TEST_F(InputTransitionsTest, StaleByAnAutomaticPressClicks) {
  becomeStale();
  stage_.control.automaticClick(True);
  stage_.press();
  expect("hovered pressed sunken repeating", "click");
}

TEST_F(InputTransitionsTest, ASecondHoverCountsAnewAndRestsAgain) {
  rest();
  stage_.moveOff();
  stage_.wait(50);
  expect("rested", "");
  stage_.moveOn();
  expect("hovered raised polling counting", "selected");
  stage_.wait(1000);
  expect("hovered raised polling rested", "rested");
}

/// Any state, by `enabled` set False.
class DisablingTest : public InputTransitionsTest {
 protected:
  void disable(const std::string& state) {
    stage_.control.enabled(False);
    expect(state, "");
  }
};

TEST_F(DisablingTest, AnIdleControlChangesNothing) { disable("idle"); }

TEST_F(DisablingTest, AHoveringControlHidesItsBorder) {
  hover();
  disable("hovered polling counting");
}

TEST_F(DisablingTest, ARestedControlHidesItsBorder) {
  rest();
  disable("hovered polling rested");
}

TEST_F(DisablingTest, APressedControlEndsThePress) {
  pressOn();
  disable("hovered polling counting");
  stage_.release();
  expect("hovered polling counting", "");
}

TEST_F(DisablingTest, AControlPressedAwayEndsThePress) {
  pressAway();
  disable("idle");
}

TEST_F(DisablingTest, AControlPressedBackEndsThePress) {
  pressBack();
  disable("hovered");
}

TEST_F(DisablingTest, AStaleControlHidesItsBorder) {
  becomeStale();
  disable("hovered");
}

}  // namespace
}  // namespace tessaly::tests
