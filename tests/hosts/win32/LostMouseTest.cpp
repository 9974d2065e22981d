// The mouse is taken away from a control while a button is held, so that nobody tells of its release.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/hosts/win32/ControlOfTestsWindow.h"

namespace tessaly::tests {
namespace {

using Told = std::vector<std::string>;

class LostMouseTest : public testing::Test {
 protected:
  LostMouseTest() { movePointer(window_, {5, 6}); }

  /// Without the moves that Windows tells of where the mouse comes to another window.
  Told eventsOf(const std::function<void()>& action) {
    control_.events.clear();
    action();
    std::erase_if(control_.events, [](const std::string& event) { return event.starts_with("MouseMove"); });
    return control_.events;
  }

  void takeMouseAway() {
    SetCapture(place_.form().window());
    ReleaseCapture();
  }

  void takeMouseAwayAndTell() {
    takeMouseAway();
    pump();
  }

  ControlOfTestsWindow place_;
  ControlOfTests& control_ = place_.control();
  HWND window_ = place_.window();
};

TEST_F(LostMouseTest, EachButtonThatIsHeldIsReleasedOutside) {
  press();
  press(MOUSEEVENTF_RIGHTDOWN);
  EXPECT_EQ(eventsOf([this] { takeMouseAwayAndTell(); }), (Told{"MouseUp 1 0 -1,-1", "MouseUp 2 0 -1,-1"}));
  EXPECT_EQ(eventsOf([this] { takeMouseAwayAndTell(); }), Told{});
  release(MOUSEEVENTF_RIGHTUP);
  release();
  press();
  EXPECT_EQ(GetCapture(), window_);
  EXPECT_EQ(eventsOf([] { release(); }), Told{"MouseUp 1 0 5,6"});
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(LostMouseTest, ThePointerIsOutsideWhileThatIsToldAndThenWhereItIs) {
  PixelPoint found;
  const auto look = [this] { return place_.container().ScreenToClient(place_.container().GetCursorPos()); };
  control_.on["MouseUp"] = [&] { found = look(); };
  press();
  takeMouseAwayAndTell();
  EXPECT_EQ(found, (PixelPoint{-1, -1}));
  EXPECT_EQ(look(), (PixelPoint{5, 6}));
  release();
}

TEST_F(LostMouseTest, WhereItGoesInThePressTheReleaseComesWhenThatHasEnded) {
  control_.on["MouseDown"] = [this] {
    takeMouseAway();
    control_.events.emplace_back("end");
  };
  EXPECT_EQ(eventsOf([] { press(); }), (Told{"MouseDown 1 0 5,6", "end", "MouseUp 1 0 -1,-1"}));
  release();
}

TEST_F(LostMouseTest, APressWithinAPressIsHeldOn) {
  control_.on["MouseDown"] = [this] {
    control_.on.clear();
    takeMouseAway();
    release();
    press();
  };
  EXPECT_EQ(eventsOf([] { press(); }), (Told{"MouseDown 1 0 5,6", "MouseUp 1 0 5,6", "MouseDown 1 0 5,6"}));
  EXPECT_EQ(GetCapture(), window_);
  EXPECT_EQ(eventsOf([] { release(); }), Told{"MouseUp 1 0 5,6"});
}

TEST_F(LostMouseTest, AWindowThatIsHiddenOrDisabledHasItNoLonger) {
  press();
  EXPECT_EQ(eventsOf([this] { ShowWindow(window_, SW_HIDE); }), Told{});
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(eventsOf([] { pump(); }), Told{"MouseUp 1 0 -1,-1"});
  release();
  ShowWindow(window_, SW_SHOW);
  pump();
  press();
  EnableWindow(window_, FALSE);
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(eventsOf([] { pump(); }), Told{"MouseUp 1 0 -1,-1"});
  release();
}

// The release came while the window was being destroyed, to a host that was taking itself apart.
TEST_F(LostMouseTest, AHostThatDestroysTheWindowMeanwhileHearsNothing) {
  Container& container = place_.container();
  int releases = 0;
  control_.on["MouseUp"] = [&] { ++releases; };
  press();
  const auto held = static_cast<win32::ChildWindow&>(container).shared_from_this();
  DestroyWindow(window_);
  pump();
  EXPECT_EQ(releases, 0);
  release();
}

TEST_F(LostMouseTest, ANewPressComesBehindTheLostRelease) {
  press();
  takeMouseAway();
  EXPECT_EQ(eventsOf([this] { SendMessageW(window_, WM_LBUTTONDOWN, 0, MAKELPARAM(7, 8)); }),
            (Told{"MouseUp 1 0 -1,-1", "MouseDown 1 0 7,8"}));
  EXPECT_EQ(GetCapture(), window_);
  EXPECT_EQ(eventsOf([] { release(); }), Told{"MouseUp 1 0 5,6"});
}

TEST_F(LostMouseTest, TheWindowMayBeDestroyedInThatRelease) {
  press();
  press(MOUSEEVENTF_RIGHTDOWN);
  control_.on["MouseUp"] = [this] { DestroyWindow(window_); };
  takeMouseAwayAndTell();
  EXPECT_FALSE(IsWindow(window_));
  EXPECT_EQ(ControlOfTests::count(), 0);
  release(MOUSEEVENTF_RIGHTUP);
  release();
}

/// A picture button that clicks while it is held.
class LostButtonTest : public testing::Test {
 protected:
  LostButtonTest() {
    button_.automaticClick(True);
    button_.events.OnButtonClick = [this] { ++clicks_; };
    movePointer(form_.button(), {24, 24});
  }

  /// Ends the button's timers; how many there were, beside the two that watch the pointer.
  int endClicking() const { return endTimersOf(form_.button()) - 2; }

  FormWindow form_;
  transparentBitmap& button_ = form_.addButton();
  int clicks_ = 0;
};

TEST_F(LostButtonTest, ItClicksWhileItIsHeld) {
  press();
  EXPECT_EQ(clicks_, 1);
  EXPECT_EQ(endClicking(), 1);
  release();
}

// It went on clicking after the release until somebody pressed it again.
TEST_F(LostButtonTest, ItClicksNoMore) {
  press();
  SetCapture(form_.window());
  ReleaseCapture();
  pump();
  EXPECT_EQ(endClicking(), 0);
  release();
  EXPECT_EQ(clicks_, 1);
}

TEST_F(LostButtonTest, ADialogInTheClickOfThePressEndsIt) {
  button_.events.OnButtonClick = [this] {
    ++clicks_;
    passDialog(form_.window());
  };
  press();
  release();
  EXPECT_EQ(clicks_, 1);
  EXPECT_LE(endClicking(), 0);
}

// The timer's own click had shown the dialog, and the timer began anew behind the release.
TEST_F(LostButtonTest, ADialogInARepeatedClickEndsIt) {
  button_.automaticClickFirstTiming(10);
  button_.automaticClickTiming(10);
  press();
  button_.events.OnButtonClick = [this] {
    ++clicks_;
    passDialog(form_.window());
  };
  EXPECT_TRUE(pumpUntil([this] { return clicks_ == 2; }));
  EXPECT_LE(endClicking(), 0);
  release();
  EXPECT_EQ(clicks_, 2);
}

TEST_F(LostButtonTest, AReleaseElsewhereIsNoClickThoughThePointerIsOnIt) {
  button_.automaticClick(False);
  press();
  SetCapture(form_.window());
  ReleaseCapture();
  release();
  EXPECT_EQ(clicks_, 0);
  movePointer(form_.button(), {25, 25});
  press();
  release();
  EXPECT_EQ(clicks_, 1);
}

}  // namespace
}  // namespace tessaly::tests
