// A picture button in a window on a display, with a real pointer and keyboard and with time as it passes.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "tests/hosts/qt/real/Display.h"

namespace tessaly::tests {
namespace {

using Lines = std::vector<std::string>;

Display& display() {
  static Display only;
  return only;
}

long count(const Lines& lines, const std::string& wanted) {
  return std::count(lines.begin(), lines.end(), wanted);
}

class QtRealInputTest : public testing::Test {
 protected:
  // What a test before this one has left behind counts for nobody.
  QtRealInputTest() {
    display().release();
    display().move(kOutsideWindow);
  }

  ~QtRealInputTest() override {
    if (!host_) return;
    host_->closeInput();
    EXPECT_EQ(host_->wait(), 0);
  }

  /// Starts the host with what it does, and waits until it is seen. It uses nothing of the user's session.
  void start(const Lines& ways = {}, const std::string& seen = "shows idle") {
    const ProcessOptions options{{display().variable(),
                                  {"QT_QPA_PLATFORM", "xcb"},
                                  {"QT_LOGGING_RULES", "qt.qpa.*=false"},
                                  {"DBUS_SESSION_BUS_ADDRESS", "disabled:"}}};
    host_ = std::make_unique<Process>("tests-qt-host", ways, options);
    waitFor(seen);
  }

  /// Waits for a line of the host's; those before it.
  Lines waitFor(const std::string& wanted) {
    Lines before;
    while (auto line = host_->readLine()) {
      if (*line == wanted) return before;
      before.push_back(*line);
    }
    ADD_FAILURE() << "The host ended without \"" << wanted << "\", after " << testing::PrintToString(before);
    return before;
  }

  /// What the host still writes of what has come to it.
  Lines rest() {
    host_->write("heard\n");
    return waitFor("heard");
  }

  void hover() {
    display().move(kOnButton);
    waitFor("shows raised");
  }
  void pressOn() {
    hover();
    display().press();
    waitFor("shows sunken");
  }
  void click() {
    display().move(kOnButton);
    display().press();
    display().release();
  }

 private:
  std::unique_ptr<Process> host_;
};

TEST_F(QtRealInputTest, AHoverShowsTheRaisedBorderAndAPollEndsIt) {
  start();
  display().move(kOnButton);
  const Lines coming = waitFor("shows raised");
  EXPECT_EQ(count(coming, "OnButtonSelected"), 1);
  EXPECT_EQ(count(coming, "timers 50 1000"), 1);
  display().move(kBesideButton);
  const Lines going = waitFor("shows idle");
  EXPECT_EQ(count(going, "timers none"), 1);
  EXPECT_EQ(count(going, "OnButtonClick"), 0);
}

TEST_F(QtRealInputTest, APressSinksTheBorderAndAReleaseClicks) {
  start();
  hover();
  display().press();
  EXPECT_EQ(count(waitFor("shows sunken"), "OnButtonClick"), 0);
  display().release();
  EXPECT_EQ(count(waitFor("shows raised"), "OnButtonClick"), 1);
}

TEST_F(QtRealInputTest, APressThatIsReleasedOutsideOfTheWindowComesToNothing) {
  start();
  pressOn();
  display().move(kOutsideWindow);
  waitFor("MouseMove 360,290");
  waitFor("timers none");
  display().release();
  waitFor("MouseUp 360,290");
  EXPECT_EQ(count(waitFor("shows idle"), "OnButtonClick"), 0);
  EXPECT_EQ(count(rest(), "OnButtonClick"), 0);
}

TEST_F(QtRealInputTest, ADragOutAndBackClicksAndLeavesTheRaisedBorderThere) {
  start();
  pressOn();
  display().move(kOutsideWindow);
  EXPECT_EQ(count(waitFor("timers none"), "shows idle"), 0);
  display().move(kOnButton);
  waitFor("MouseMove 10,12");
  display().release();
  EXPECT_EQ(count(waitFor("shows raised"), "OnButtonClick"), 1);
  display().move({kOnButton.x + 1, kOnButton.y});
  waitFor("timers 1000");
  display().move(kBesideButton);
  EXPECT_EQ(count(waitFor("OnButtonSelectedTiming"), "shows idle"), 0);
  EXPECT_EQ(count(rest(), "shows idle"), 0);
}

TEST_F(QtRealInputTest, AutomaticClicksComeWhileTheButtonIsHeldAndEndWithIt) {
  start({"clicks-automatically"});
  hover();
  display().press();
  EXPECT_EQ(count(waitFor("OnButtonClick"), "MouseDown 10,12"), 1);
  waitFor("OnButtonClick");
  display().move(kOutsideWindow);
  waitFor("MouseMove 360,290");
  waitFor("OnButtonClick");
  waitFor("OnButtonClick");
  display().release();
  waitFor("MouseUp 360,290");
  waitFor("shows idle");
  hover();
  display().move(kBesideButton);
  EXPECT_EQ(count(waitFor("shows idle"), "OnButtonClick"), 0);
}

TEST_F(QtRealInputTest, AModalDialogMayBeShownInAClick) {
  start({"shows-a-dialog"});
  click();
  EXPECT_EQ(count(waitFor("dialog open"), "OnButtonClick"), 1);
  display().move(kOnDialog);
  waitFor("shows idle");
  display().move(kOnButton);
  display().press();
  display().release();
  display().move(kOnDialog);
  EXPECT_EQ(rest(), Lines{});
  display().press();
  waitFor("dialog closed");
  display().release();
  click();
  EXPECT_EQ(count(waitFor("dialog open"), "OnButtonClick"), 1);
  display().move(kOnDialog);
  display().press();
  waitFor("dialog closed");
}

// The release went to the dialog, and the clicks went on behind it for ever.
TEST_F(QtRealInputTest, AModalDialogInAnAutomaticClickEndsThePress) {
  start({"clicks-automatically", "shows-a-dialog"});
  hover();
  display().press();
  waitFor("dialog open");
  display().release();
  display().move(kOnDialog);
  waitFor("timers none");
  display().press();
  waitFor("dialog closed");
  waitFor("MouseUp -1,-1");
  EXPECT_EQ(count(waitFor("shows idle"), "timers 60"), 0);
  display().release();
  click();
  EXPECT_EQ(count(waitFor("OnButtonClick"), "OnButtonSelected"), 1);
  waitFor("dialog open");
  display().move(kOnDialog);
  display().press();
  waitFor("dialog closed");
}

TEST_F(QtRealInputTest, AHandlerMaySetEnabledFalse) {
  start({"disables"});
  pressOn();
  display().release();
  EXPECT_EQ(count(waitFor("shows idle"), "OnButtonClick"), 1);
  click();
  waitFor("MouseUp 10,12");
  EXPECT_EQ(count(rest(), "OnButtonClick"), 0);
}

TEST_F(QtRealInputTest, AHandlerMaySetEnabledFalseWhileTheButtonIsHeld) {
  start({"clicks-automatically", "disables"});
  click();
  const Lines lines = waitFor("MouseUp 10,12");
  EXPECT_EQ(count(lines, "OnButtonClick") + count(rest(), "OnButtonClick"), 1);
}

TEST_F(QtRealInputTest, TheHostMayDestroyTheButtonInItsClick) {
  start({"deletes"});
  click();
  EXPECT_EQ(count(waitFor("gone"), "OnButtonClick"), 1);
  click();
  EXPECT_EQ(rest(), Lines{});
}

TEST_F(QtRealInputTest, TheHostMayDestroyTheWindowInTheClickOfAPress) {
  start({"clicks-automatically", "deletes-the-window"});
  hover();
  display().press();
  EXPECT_EQ(count(waitFor("gone"), "OnButtonClick"), 1);
  display().release();
  EXPECT_EQ(rest(), Lines{});
}

TEST_F(QtRealInputTest, TheHostMayDestroyTheButtonBehindADialogThatItsClickHasShown) {
  start({"shows-a-dialog", "deletes"});
  click();
  waitFor("dialog open");
  display().move(kOnDialog);
  display().press();
  waitFor("dialog closed");
  waitFor("gone");
  display().release();
  EXPECT_EQ(rest(), Lines{});
}

TEST_F(QtRealInputTest, WhatAHandlerRaisesReachesTheErrorHandlerAndTheLoopGoesOn) {
  start({"raises"});
  click();
  EXPECT_EQ(count(waitFor("error 13"), "OnButtonClick"), 1);
  click();
  EXPECT_EQ(count(waitFor("error 13"), "OnButtonClick"), 1);
  EXPECT_EQ(count(rest(), "gone"), 0);
}

TEST_F(QtRealInputTest, TheKeyboardReachesItWhereNobodyManagesWindows) {
  start({"has-the-keyboard"}, "shows something else");
  display().key("space");
  EXPECT_EQ(count(waitFor("OnButtonClick"), "OnButtonSelected"), 1);
  display().key("Return");
  waitFor("OnButtonClick");
}

}  // namespace
}  // namespace tessaly::tests
