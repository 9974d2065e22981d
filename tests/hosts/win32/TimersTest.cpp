// Timers that the window of their control runs.

#include <gtest/gtest.h>

#include "tessaly/forms/Timer.h"
#include "tests/hosts/win32/ControlOfTestsWindow.h"

namespace tessaly::tests {
namespace {

class TimersTest : public testing::Test {
 protected:
  /// How many of the first hundred timers run in a window, all of which this ends.
  static int endTimers(HWND window) {
    int running = 0;
    for (UINT_PTR number = 1; number <= 100; ++number) {
      if (KillTimer(window, win32::Timers::kNumbersBegin + number) != FALSE) ++running;
    }
    return running;
  }

  void begin(Timer& timer, Long milliseconds) const {
    timer.Interval(milliseconds);
    timer.Enabled(True);
  }

  std::unique_ptr<ControlOfTestsWindow> place_ = std::make_unique<ControlOfTestsWindow>();
  HWND window_ = place_->window();
};

TEST_F(TimersTest, OneTicksAgainAndAgainUntilItIsStopped) {
  int ticks = 0;
  Timer timer(place_->control().surface(), [&] { ++ticks; });
  begin(timer, 10);
  EXPECT_TRUE(pumpUntil([&] { return ticks == 3; }));
  timer.Enabled(False);
  EXPECT_EQ(endTimers(window_), 0);
}

TEST_F(TimersTest, TheIntervalBeginsWhenTheTickHasEnded) {
  int runningInTick = -1;
  Timer timer(place_->control().surface(), [&] { runningInTick = endTimers(window_); });
  begin(timer, 10);
  EXPECT_TRUE(pumpUntil([&] { return runningInTick == 0; }));
  EXPECT_EQ(endTimers(window_), 1);
}

TEST_F(TimersTest, ATickMayBeginItsTimerAnewOrStopIt) {
  int ticks = 0;
  Timer timer(place_->control().surface(), [&] {
    if (++ticks == 1) {
      timer.Interval(20);
    } else {
      timer.Enabled(False);
    }
  });
  begin(timer, 10);
  EXPECT_TRUE(pumpUntil([&] { return ticks == 1; }));
  EXPECT_TRUE(pumpUntil([&] { return ticks == 2; }));
  EXPECT_EQ(endTimers(window_), 0);
}

TEST_F(TimersTest, ATimerThatWasStoppedDoesNotTickAnyMoreThoughItsTimeHadCome) {
  int ticks = 0;
  Timer timer(place_->control().surface(), [&] { ++ticks; });
  begin(timer, 10);
  PostMessageW(window_, WM_TIMER, win32::Timers::kNumbersBegin + 1, 0);
  timer.Enabled(False);
  timer.Enabled(True);
  pump();
  EXPECT_LE(ticks, 1);
  timer.Enabled(False);
  const int before = ticks;
  PostMessageW(window_, WM_TIMER, win32::Timers::kNumbersBegin + 2, 0);
  PostMessageW(window_, WM_TIMER, 1, 0);
  pump();
  EXPECT_EQ(ticks, before);
}

TEST_F(TimersTest, TheLongestIntervalIsTakenAndNoneAtAllIsNoTimer) {
  Timer timer(place_->control().surface(), [] {});
  begin(timer, 65535);
  EXPECT_EQ(endTimers(window_), 1);
  timer.Interval(0);
  EXPECT_EQ(endTimers(window_), 0);
}

TEST_F(TimersTest, WhatATickRaisesIsReportedAndTheTimerGoesOn) {
  int ticks = 0;
  Timer timer(place_->control().surface(), [&] {
    ++ticks;
    throw RuntimeError(RuntimeError::Overflow);
  });
  begin(timer, 10);
  EXPECT_TRUE(pumpUntil([&] { return ticks == 2; }));
  EXPECT_EQ(place_->form().errors().front(), RuntimeError::Overflow);
}

TEST_F(TimersTest, ATickMayDestroyTheWindow) {
  bool hasControl = false;
  int ticks = 0;
  std::unique_ptr<Timer> timer;
  timer = std::make_unique<Timer>(place_->control().surface(), [&] {
    ++ticks;
    DestroyWindow(window_);
    hasControl = ControlOfTests::count() == 1;
    timer.reset();
  });
  begin(*timer, 10);
  EXPECT_TRUE(pumpUntil([&] { return ticks == 1; }));
  EXPECT_TRUE(hasControl);
  EXPECT_EQ(ControlOfTests::count(), 0);
}

}  // namespace
}  // namespace tessaly::tests
