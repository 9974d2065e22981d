// What the mouse does to a picture button in a window: each state and the ways between them. The events are a
// platform's, and time passes only where a test lets it.

#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

using Intervals = std::vector<int>;

class QtTransitionsTest : public ButtonOnStage {
 protected:
  static constexpr QPoint kInside = Stage::kInside;
  static constexpr QPoint kOutside = Stage::kOutside;

  /// The ways into the states that others start from; what happened on the way is forgotten.
  void hover() {
    stage_.move(kInside);
    takeEvents();
  }
  void pressOn() {
    hover();
    stage_.press();
    takeEvents();
  }
  void dragAway() {
    pressOn();
    stage_.move(kOutside);
    tick(button(), kPoll);
    takeEvents();
  }
  void dragBack() {
    dragAway();
    stage_.move(kInside);
    takeEvents();
  }
};

TEST_F(QtTransitionsTest, AnIdleButtonShowsNoBorderAndRunsNoTimer) {
  EXPECT_EQ(border(), "hidden");
  EXPECT_EQ(timers(), Intervals{});
}

TEST_F(QtTransitionsTest, ThePointerThatComesSelects) {
  stage_.move(kInside);
  EXPECT_EQ(takeEvents(), Events{"OnButtonSelected"});
  EXPECT_EQ(border(), "raised");
  EXPECT_EQ(timers(), (Intervals{kPoll, kRest}));
}

TEST_F(QtTransitionsTest, AMoveOnItBeginsTheRestAnew) {
  hover();
  stage_.move(kInside + QPoint(1, 1));
  EXPECT_EQ(takeEvents(), Events{});
  EXPECT_EQ(timers(), (Intervals{kPoll, kRest}));
}

TEST_F(QtTransitionsTest, APollWithThePointerOnItChangesNothing) {
  hover();
  tick(button(), kPoll);
  EXPECT_EQ(border(), "raised");
  EXPECT_EQ(timers(), (Intervals{kPoll, kRest}));
}

TEST_F(QtTransitionsTest, APollThatFindsThePointerGoneEndsTheHover) {
  hover();
  stage_.move(kOutside);
  EXPECT_EQ(border(), "raised");
  tick(button(), kPoll);
  EXPECT_EQ(border(), "hidden");
  EXPECT_EQ(timers(), Intervals{});
  EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(QtTransitionsTest, TheRestIsToldOnceForEachHover) {
  hover();
  tick(button(), kRest);
  EXPECT_EQ(takeEvents(), Events{"OnButtonSelectedTiming"});
  stage_.move(kInside + QPoint(2, 2));
  EXPECT_EQ(timers(), Intervals{kPoll});
}

TEST_F(QtTransitionsTest, APressSinksAndAReleaseOnItClicks) {
  hover();
  stage_.press();
  EXPECT_EQ(border(), "sunken");
  EXPECT_EQ(takeEvents(), Events{});
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{"OnButtonClick"});
  EXPECT_EQ(border(), "raised");
}

TEST_F(QtTransitionsTest, ARestedButtonClicksAsWellAndStaysRested) {
  hover();
  tick(button(), kRest);
  stage_.press();
  stage_.release();
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelectedTiming", "OnButtonClick"}));
  EXPECT_EQ(timers(), Intervals{kPoll});
}

TEST_F(QtTransitionsTest, AReleaseOffItBeforeAPollEndsThePressAndLeavesTheTimers) {
  pressOn();
  stage_.move(kOutside);
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{});
  EXPECT_EQ(border(), "hidden");
  EXPECT_EQ(timers(), (Intervals{kPoll, kRest}));
}

TEST_F(QtTransitionsTest, AReleaseOnThePixelBehindItsEdgeIsAClick) {
  pressOn();
  stage_.move({48, 40});
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{"OnButtonClick"});
}

TEST_F(QtTransitionsTest, APressThatIsDraggedAwayStaysSunkenAndClicksNot) {
  pressOn();
  stage_.move(kOutside);
  tick(button(), kPoll);
  EXPECT_EQ(border(), "sunken");
  EXPECT_EQ(timers(), Intervals{});
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{});
  EXPECT_EQ(border(), "hidden");
}

TEST_F(QtTransitionsTest, WhileItIsHeldTheMouseIsToldFromOutside) {
  pressOn();
  listenToTheMouse();
  stage_.move(kOutside);
  stage_.release();
  stage_.move(kOutside + QPoint(1, 1));
  EXPECT_EQ(takeEvents(), (Events{"MouseMove 1 0 -20,-15", "MouseUp 1 0 -20,-15"}));
}

TEST_F(QtTransitionsTest, ADragAwayAndBackClicksAndLeavesTheBorderOn) {
  dragBack();
  EXPECT_EQ(border(), "sunken");
  EXPECT_EQ(timers(), Intervals{});
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{"OnButtonClick"});
  EXPECT_EQ(border(), "raised");
  stage_.move(kOutside);
  EXPECT_EQ(timers(), Intervals{});
  EXPECT_EQ(border(), "raised");
}

TEST_F(QtTransitionsTest, ADragAwayAndBackAndAwayEndsWithTheRelease) {
  dragBack();
  stage_.move(kOutside);
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{});
  EXPECT_EQ(border(), "hidden");
}

TEST_F(QtTransitionsTest, AStaleBorderSelectsNotAgainAndGoesWithAPressThatEndsOutside) {
  dragBack();
  stage_.release();
  stage_.move(kOutside);
  takeEvents();
  stage_.move(kInside);
  EXPECT_EQ(takeEvents(), Events{});
  stage_.press();
  stage_.move(kOutside);
  stage_.release();
  EXPECT_EQ(border(), "hidden");
  stage_.move(kInside);
  EXPECT_EQ(takeEvents(), Events{"OnButtonSelected"});
}

TEST_F(QtTransitionsTest, OnlyTheLeftButtonWithoutModifiersPresses) {
  hover();
  stage_.press(Qt::RightButton);
  EXPECT_EQ(border(), "raised");
  stage_.release(Qt::RightButton);
  stage_.press(Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(border(), "raised");
  stage_.release(Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(QtTransitionsTest, AnyButtonsReleaseEndsThePress) {
  pressOn();
  stage_.press(Qt::RightButton);
  stage_.release(Qt::RightButton);
  EXPECT_EQ(takeEvents(), Events{"OnButtonClick"});
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(QtTransitionsTest, TheSecondPressOfADoubleClickIsAPress) {
  hover();
  stage_.doubleClick();
  EXPECT_EQ(takeEvents(), (Events{"OnButtonClick", "OnButtonClick"}));
}

TEST_F(QtTransitionsTest, AButtonOfTheMouseThatFormsDoNotKnowIsNotForIt) {
  hover();
  listenToTheMouse();
  stage_.press(Qt::BackButton);
  stage_.release(Qt::BackButton);
  EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(QtTransitionsTest, TheMouseIsToldWithItsButtonsKeysAndPlace) {
  listenToTheMouse();
  stage_.move(kInside);
  stage_.press(Qt::MiddleButton, Qt::AltModifier | Qt::ControlModifier);
  stage_.release(Qt::MiddleButton);
  EXPECT_EQ(takeEvents(),
            (Events{"MouseMove 0 0 10,12", "OnButtonSelected", "MouseDown 4 6 10,12", "MouseUp 4 0 10,12"}));
}

TEST_F(QtTransitionsTest, WithoutABorderItHearsTheMouseAndDoesNothing) {
  button().withBorder(0);
  listenToTheMouse();
  stage_.move(kInside);
  stage_.press();
  stage_.release();
  EXPECT_EQ(takeEvents(), (Events{"MouseMove 0 0 10,12", "MouseDown 1 0 10,12", "MouseUp 1 0 10,12"}));
  EXPECT_EQ(timers(), Intervals{});
}

TEST_F(QtTransitionsTest, DisabledItHearsTheMouseAndDoesNothing) {
  button().enabled(false);
  listenToTheMouse();
  stage_.move(kInside);
  stage_.press();
  stage_.release();
  EXPECT_EQ(takeEvents(), (Events{"MouseMove 0 0 10,12", "MouseDown 1 0 10,12", "MouseUp 1 0 10,12"}));
}

TEST_F(QtTransitionsTest, AWidgetThatQtDisablesHearsNothing) {
  button().setEnabled(false);
  EXPECT_TRUE(button().enabled());
  listenToTheMouse();
  stage_.move(kInside);
  stage_.press();
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(QtTransitionsTest, DisabledDuringAHoverItHidesTheBorderAndPollsOn) {
  hover();
  button().enabled(false);
  EXPECT_EQ(border(), "hidden");
  EXPECT_EQ(timers(), (Intervals{kPoll, kRest}));
  stage_.move(kOutside);
  tick(button(), kPoll);
  EXPECT_EQ(timers(), (Intervals{kPoll, kRest}));
  button().enabled(true);
  tick(button(), kPoll);
  EXPECT_EQ(timers(), Intervals{});
}

TEST_F(QtTransitionsTest, DisabledInsideAHandlerItClicksNoMore) {
  hover();
  QObject::connect(&button(), &qt::PictureButton::MouseUp, [this] { button().enabled(false); });
  stage_.press();
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{});
  EXPECT_EQ(border(), "hidden");
}

TEST_F(QtTransitionsTest, AHiddenButtonDoesNotTellOfARest) {
  hover();
  button().hide();
  tick(button(), kRest);
  EXPECT_EQ(takeEvents(), Events{});
  button().show();
  tick(button(), kRest);
  EXPECT_EQ(takeEvents(), Events{"OnButtonSelectedTiming"});
}

TEST_F(QtTransitionsTest, AButtonOnAHiddenWindowTellsOfARest) {
  hover();
  stage_.window().hide();
  tick(button(), kRest);
  EXPECT_EQ(takeEvents(), Events{"OnButtonSelectedTiming"});
}

}  // namespace
}  // namespace tessaly::tests
