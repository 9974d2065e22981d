// The repeated click: its times, and what changes it while the button is held.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/controls/InputFixture.h"

namespace tessaly::tests {
namespace {

using AutomaticClickTest = InputFixture;

TEST_F(AutomaticClickTest, ASecondPressWithoutAReleaseIsIgnored) {
  control_.automaticClick(True);
  hover();
  stage_.press();
  expect("hovered pressed sunken polling counting repeating", "click");
  stage_.press();
  expect("hovered pressed sunken polling counting repeating", "");
}

TEST_F(AutomaticClickTest, AutomaticClicksComeAtThePressAfterTheFirstDelayAndThenAfterEachOther) {
  control_.automaticClick(True);
  control_.automaticClickFirstTiming(300);
  control_.automaticClickTiming(100);
  hover();
  stage_.press();
  EXPECT_EQ(stage_.heard(), "click");
  stage_.wait(299);
  EXPECT_EQ(stage_.heard(), "");
  stage_.wait(1);
  EXPECT_EQ(stage_.heard(), "click");
  stage_.wait(99);
  EXPECT_EQ(stage_.heard(), "");
  stage_.wait(1);
  EXPECT_EQ(stage_.heard(), "click");
  stage_.wait(300);
  EXPECT_EQ(stage_.heard(), "click click click");
  stage_.release();
  stage_.wait(1000);
  EXPECT_EQ(stage_.heard(), "rested") << "and no click";
}

TEST_F(AutomaticClickTest, AutomaticClicksGoOnWithThePointerOffTheControl) {
  control_.automaticClick(True);
  hover();
  stage_.press();
  stage_.moveOff();
  stage_.wait(1000);
  EXPECT_EQ(stage_.heard(), "click click click");
}

TEST_F(AutomaticClickTest, AFirstDelayOf0RepeatsNothing) {
  control_.automaticClick(True);
  control_.automaticClickFirstTiming(0);
  hover();
  stage_.press();
  stage_.wait(900);
  expect("hovered pressed sunken polling counting", "click");
}

TEST_F(AutomaticClickTest, ALaterDelayOf0RepeatsOnce) {
  control_.automaticClick(True);
  control_.automaticClickTiming(0);
  hover();
  stage_.press();
  stage_.wait(900);
  expect("hovered pressed sunken polling counting", "click click");
}

TEST_F(AutomaticClickTest, DisablingBetweenTwoTicksLeavesTheRepetitionRunning) {
  control_.automaticClick(True);
  hover();
  stage_.press();
  control_.enabled(False);
  control_.enabled(True);
  stage_.heard();
  stage_.release();
  stage_.wait(500);
  expect("hovered polling counting repeating", "click");
  stage_.wait(499);
  control_.enabled(False);
  stage_.wait(1);
  expect("hovered polling rested", "rested");
}

TEST_F(AutomaticClickTest, ANewPressAndReleaseEndARepetitionThatWasLeft) {
  control_.automaticClick(True);
  hover();
  stage_.press();
  control_.enabled(False);
  control_.enabled(True);
  stage_.click();
  stage_.heard();
  stage_.wait(500);
  expect("hovered raised polling counting", "");
}

TEST_F(AutomaticClickTest, NoLongerAutomaticWhileHeldTheReleaseClicksAndTheTicksDoNothing) {
  control_.automaticClick(True);
  hover();
  stage_.press();
  control_.automaticClick(False);
  stage_.heard();
  stage_.wait(900);
  expect("hovered pressed sunken polling counting repeating", "");
  stage_.release();
  expect("hovered raised polling counting repeating", "click");
  control_.automaticClick(True);
  stage_.wait(100);
  EXPECT_EQ(stage_.heard(), "rested click") << "the timer that was left goes on";
}

TEST_F(AutomaticClickTest, AutomaticOnlyWhileHeldTheReleaseRaisesNoClick) {
  hover();
  stage_.press();
  control_.automaticClick(True);
  stage_.release();
  stage_.wait(900);
  expect("hovered raised polling counting", "");
}

TEST_F(AutomaticClickTest, AnAutomaticReleaseRaisesNoClick) {
  control_.automaticClick(True);
  hover();
  stage_.press();
  stage_.release();
  expect("hovered raised polling counting", "click");
}

TEST_F(AutomaticClickTest, AHostThatDisablesInTheFirstClickGetsNoOther) {
  control_.automaticClick(True);
  int clicks = 0;
  control_.events.OnButtonClick = [&] {
    ++clicks;
    control_.enabled(False);
  };
  hover();
  stage_.press();
  expect("hovered polling counting repeating", "");
  stage_.wait(500);
  expect("hovered polling counting", "");
  EXPECT_EQ(clicks, 1);
}

TEST_F(AutomaticClickTest, TheRepetitionBeginsOnlyWhenTheFirstClickHasReturned) {
  control_.automaticClick(True);
  std::vector<std::string> states;
  control_.events.OnButtonClick = [&] {
    states.push_back(stage_.state());
    // A modal dialog: time goes on, and the pointer and the timers with it.
    if (states.size() == 1) stage_.wait(700);
  };
  hover();
  stage_.press();
  EXPECT_EQ(states, std::vector<std::string>{"hovered pressed sunken polling counting"});
  stage_.wait(500);
  EXPECT_EQ(states.size(), 2U);
}

TEST_F(AutomaticClickTest, AReleaseInsideTheFirstClickLeavesARepetition) {
  control_.automaticClick(True);
  int clicks = 0;
  control_.events.OnButtonClick = [&] {
    if (++clicks == 1) stage_.release();
  };
  hover();
  stage_.press();
  expect("hovered raised polling counting repeating", "");
}

TEST_F(AutomaticClickTest, AFirstDelayThatTheTimerRefusesFailsInThePress) {
  for (const Long timing : {-1, 65536}) {
    control_.automaticClick(True);
    control_.automaticClickFirstTiming(timing);
    stage_.moveOn();
    stage_.heard();
    stage_.press();
    ASSERT_FALSE(stage_.form.errors().empty());
    EXPECT_EQ(stage_.form.errors().back().number(), RuntimeError::InvalidPropertyValue);
    expect("hovered pressed sunken polling counting", "click");
    stage_.release();
  }
}

TEST_F(AutomaticClickTest, ALaterDelayThatTheTimerRefusesFailsInTheTickAndEndsTheRepetition) {
  control_.automaticClick(True);
  control_.automaticClickTiming(-1);
  hover();
  stage_.press();
  stage_.wait(900);
  expect("hovered pressed sunken polling counting", "click click");
  ASSERT_EQ(stage_.form.errors().size(), 1U);
  EXPECT_EQ(stage_.form.errors()[0].number(), RuntimeError::InvalidPropertyValue);
}

}  // namespace
}  // namespace tessaly::tests
