// What a host does in the control's events: it changes properties, raises errors, and lets go of the control.

#include <gtest/gtest.h>

#include <new>
#include <string>

#include "tests/controls/InputFixture.h"

namespace tessaly::tests {
namespace {

using InputHostTest = InputFixture;

TEST_F(InputHostTest, WhatTheHostMakesOfButtonAndShiftDecides) {
  hover();
  control_.events.MouseDown = [](std::int16_t& button, std::int16_t&, float&, float&) { button = kRight; };
  stage_.press();
  expect("hovered raised polling counting", "");
  stage_.release();
  control_.events.MouseDown = [](std::int16_t& button, std::int16_t& shift, float&, float&) {
    button = kLeft;
    shift = 0;
  };
  stage_.form.press(kRight, kShift);
  expect("hovered pressed sunken polling counting", "");
}

TEST_F(InputHostTest, AHostThatDisablesInAnEventEndsWhatFollows) {
  control_.events.MouseMove = [this](std::int16_t&, std::int16_t&, float&, float&) {
    control_.enabled(False);
  };
  stage_.moveOn();
  expect("idle", "");
}

TEST_F(InputHostTest, AHostThatDisablesInTheSelectionStillGetsTheRest) {
  control_.events.OnButtonSelected = [this] { control_.enabled(False); };
  stage_.moveOn();
  expect("hovered polling counting", "");
}

TEST_F(InputHostTest, ABorderOfMoreThan16BitsFailsInTheMoveWithTheHoverBegun) {
  control_.withBorder(32768);
  stage_.moveOn();
  expect("hovered", "");
  ASSERT_EQ(stage_.form.errors().size(), 1U);
  EXPECT_EQ(stage_.form.errors()[0].number(), RuntimeError::Overflow);
}

TEST_F(InputHostTest, WhatAHostRaisesInAnEventGoesToItsForm) {
  control_.events.MouseDown = [](std::int16_t&, std::int16_t&, float&, float&) {
    throw RuntimeError(RuntimeError::FileNotFound);
  };
  hover();
  stage_.press();
  ASSERT_EQ(stage_.form.errors().size(), 1U);
  EXPECT_EQ(stage_.form.errors()[0].number(), RuntimeError::FileNotFound);
  expect("hovered raised polling counting", "");
}

TEST_F(InputHostTest, WhatAHostRaisesInTheRestIsIgnored) {
  control_.events.OnButtonSelectedTiming = [] { throw RuntimeError(RuntimeError::FileNotFound); };
  hover();
  stage_.wait(1000);
  expect("hovered raised polling rested", "");
  EXPECT_TRUE(stage_.form.errors().empty());
}

TEST_F(InputHostTest, WantOfMemoryInTheRestIsIgnoredToo) {
  control_.events.OnButtonSelectedTiming = [] { throw std::bad_alloc(); };
  hover();
  stage_.wait(1000);
  EXPECT_TRUE(stage_.form.errors().empty());
}

TEST_F(InputHostTest, TheSelectionIsRaisedBeforeTheRestIsForgotten) {
  hover();
  stage_.wait(1000);
  stage_.moveOff();
  stage_.wait(50);
  std::string within;
  control_.events.OnButtonSelected = [&] { within = stage_.state(); };
  stage_.moveOn();
  EXPECT_EQ(within, "hovered raised polling rested");
  expect("hovered raised polling counting", "rested");
}

TEST_F(InputHostTest, TheRestIsKnownBeforeItIsRaised) {
  std::string within;
  control_.events.OnButtonSelectedTiming = [&] { within = stage_.state(); };
  hover();
  stage_.wait(1000);
  EXPECT_EQ(within, "hovered raised polling rested");
}

TEST_F(InputHostTest, APressWhoseBorderFailsIsNone) {
  control_.withBorder(32768);
  stage_.moveOn();
  stage_.press();
  expect("hovered", "");
  EXPECT_EQ(stage_.form.errors().size(), 2U);
}

TEST_F(InputHostTest, AReleaseWhoseBorderFailsLeavesThePress) {
  hover();
  stage_.press();
  control_.withBorder(32768);
  stage_.release();
  expect("hovered pressed sunken polling counting", "");
  EXPECT_EQ(stage_.form.errors().size(), 1U);
}

TEST_F(InputHostTest, AReleaseDoesNothingWhereDisablingHasFailedToEndThePress) {
  hover();
  stage_.press();
  control_.withBorder(32768);
  EXPECT_THROW(control_.enabled(False), RuntimeError);
  control_.withBorder(2);
  stage_.release();
  expect("hovered pressed sunken polling counting", "");
}

TEST_F(InputHostTest, AHostMayChangeWhatItWantsToHearInsideOfIt) {
  control_.events.OnButtonSelected = [this] {
    const std::string text = "a text that is longer than any small one";
    control_.events = {};
    EXPECT_EQ(text, "a text that is longer than any small one");
  };
  stage_.moveOn();
  stage_.click();
  expect("hovered raised polling counting", "");
}

/// The host lets go of the control in one of its events.
class InputOfAControlThatGoesTest : public testing::TestWithParam<std::string> {
 protected:
  void letGo() {
    if (!isThere_) return;
    isThere_ = false;
    form_.remove(control_);
  }

  headless::Form form_;
  transparentBitmap& control_ = form_.add<transparentBitmap>({20, 10, 40, 30});
  bool isThere_ = true;
};

TEST_P(InputOfAControlThatGoesTest, EndsInPeace) {
  const auto mouse = [this](std::int16_t&, std::int16_t&, float&, float&) { letGo(); };
  const auto plain = [this] { letGo(); };
  control_.withBorder(2);
  control_.automaticClick(GetParam() == "AutomaticClick" || GetParam() == "RepeatedClick");
  if (GetParam() == "MouseMove") control_.events.MouseMove = mouse;
  if (GetParam() == "MouseDown") control_.events.MouseDown = mouse;
  if (GetParam() == "MouseUp") control_.events.MouseUp = mouse;
  if (GetParam() == "Selected") control_.events.OnButtonSelected = plain;
  if (GetParam() == "Rested") control_.events.OnButtonSelectedTiming = plain;
  if (GetParam() == "Click" || GetParam() == "AutomaticClick") control_.events.OnButtonClick = plain;
  int clicks = 0;
  if (GetParam() == "RepeatedClick") {
    control_.events.OnButtonClick = [&] {
      if (++clicks == 2) letGo();
    };
  }
  form_.movePointer({30, 20});
  if (isThere_) form_.advance(GetParam() == "Rested" ? 1000 : 0);
  if (isThere_) form_.press();
  if (isThere_) form_.advance(500);
  if (isThere_) form_.release();
  EXPECT_FALSE(isThere_);
  form_.advance(5000);
  EXPECT_TRUE(form_.errors().empty());
}

INSTANTIATE_TEST_SUITE_P(InEach, InputOfAControlThatGoesTest,
                         testing::Values("MouseMove", "MouseDown", "MouseUp", "Selected", "Rested", "Click",
                                         "AutomaticClick", "RepeatedClick"),
                         [](const auto& test) { return test.param; });

}  // namespace
}  // namespace tessaly::tests
