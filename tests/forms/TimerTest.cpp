// Timers on a clock that is moved by hand.

#include "tessaly/forms/Timer.h"

#include <gtest/gtest.h>

#include "tessaly/forms/headless/Form.h"
#include "tests/forms/ControlOfTests.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

class TimerTest : public testing::Test {
 protected:
  static void start(Timer& timer, Long interval) {
    timer.Enabled(False);
    timer.Interval(interval);
    timer.Enabled(True);
  }

  void advanceOneByOne(int milliseconds) {
    for (; milliseconds > 0; --milliseconds) {
      form_.advance(1);
      ++now_;
    }
  }

  headless::Form form_;
  ControlOfTests& control_ = form_.add<ControlOfTests>({0, 0, 10, 10});
  int now_ = 0;
  std::vector<int> ticks_;
  Timer timer_{control_.surface(), [this] { ticks_.push_back(now_ + 1); }};
};

TEST_F(TimerTest, BeginsDisabledWithNoInterval) {
  EXPECT_FALSE(timer_.Enabled());
  EXPECT_EQ(timer_.Interval(), 0);
}

TEST_F(TimerTest, TicksEachTimeThatItsIntervalHasPassed) {
  start(timer_, 10);
  advanceOneByOne(35);
  EXPECT_EQ(ticks_, (std::vector{10, 20, 30}));
}

TEST_F(TimerTest, TicksOnceForEachIntervalOfALongMove) {
  start(timer_, 10);
  form_.advance(35);
  EXPECT_EQ(ticks_.size(), 3U);
  form_.advance(4);
  EXPECT_EQ(ticks_.size(), 3U);
  form_.advance(1);
  EXPECT_EQ(ticks_.size(), 4U);
}

TEST_F(TimerTest, NeedsBothAnIntervalAndToBeEnabled) {
  timer_.Interval(10);
  form_.advance(100);
  timer_.Interval(0);
  timer_.Enabled(True);
  form_.advance(100);
  EXPECT_TRUE(ticks_.empty());
  timer_.Interval(10);
  form_.advance(10);
  EXPECT_EQ(ticks_.size(), 1U);
  timer_.Interval(0);
  form_.advance(100);
  EXPECT_EQ(ticks_.size(), 1U);
}

TEST_F(TimerTest, AnIntervalIsFrom0To65535) {
  for (const Long interval :
       {-1, 65536, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()}) {
    EXPECT_EQ(errorOf([&] { timer_.Interval(interval); }), RuntimeError::InvalidPropertyValue) << interval;
  }
  start(timer_, 65535);
  form_.advance(65534);
  EXPECT_TRUE(ticks_.empty());
  form_.advance(1);
  EXPECT_EQ(ticks_.size(), 1U);
}

TEST_F(TimerTest, ARefusedIntervalLeavesItRunning) {
  start(timer_, 10);
  form_.advance(5);
  EXPECT_EQ(errorOf([&] { timer_.Interval(65536); }), RuntimeError::InvalidPropertyValue);
  form_.advance(5);
  EXPECT_EQ(ticks_.size(), 1U);
}

TEST_F(TimerTest, ARestartBeginsAnew) {
  start(timer_, 10);
  advanceOneByOne(6);
  start(timer_, 10);
  advanceOneByOne(10);
  EXPECT_EQ(ticks_, (std::vector{16}));
}

TEST_F(TimerTest, AnotherIntervalBeginsAnewAndTheSameStateOfEnabledDoesNot) {
  start(timer_, 10);
  advanceOneByOne(6);
  timer_.Enabled(True);
  timer_.Enabled(Boolean(1));
  advanceOneByOne(4);
  EXPECT_EQ(ticks_, (std::vector{10}));
  advanceOneByOne(6);
  timer_.Interval(10);
  advanceOneByOne(10);
  EXPECT_EQ(ticks_, (std::vector{10, 26}));
}

TEST_F(TimerTest, TicksComeInTheOrderOfTheirTimeAndThenOfTheirBeginning) {
  std::string order;
  Timer a(control_.surface(), [&] { order += 'a'; });
  Timer b(control_.surface(), [&] { order += 'b'; });
  Timer c(control_.surface(), [&] { order += 'c'; });
  start(b, 20);
  start(a, 20);
  start(c, 15);
  form_.advance(40);
  EXPECT_EQ(order, "cbacba");
}

TEST_F(TimerTest, OneThatHasTickedStandsBehindOneThatWasBegunBeforeThat) {
  std::string order;
  Timer quick(control_.surface(), [&] { order += 'q'; });
  Timer slow(control_.surface(), [&] { order += 's'; });
  start(quick, 10);
  start(slow, 20);
  form_.advance(20);
  EXPECT_EQ(order, "qsq");
}

TEST_F(TimerTest, MayChangeItselfInItsTick) {
  std::vector<int> ticks;
  Timer timer(control_.surface(), [&] {
    ticks.push_back(now_ + 1);
    start(timer, timer.Interval() + 10);
    if (ticks.size() == 3) timer.Enabled(False);
  });
  start(timer, 10);
  advanceOneByOne(200);
  EXPECT_EQ(ticks, (std::vector{10, 30, 60}));
}

TEST_F(TimerTest, MayStopAnotherThatIsDueAtTheSameMoment) {
  Timer first(control_.surface(), [&] { timer_.Enabled(False); });
  start(first, 10);
  start(timer_, 10);
  form_.advance(100);
  EXPECT_TRUE(ticks_.empty());
}

// A handler that shows a dialog lets the time go on: the interval is counted from when it returns.
TEST_F(TimerTest, DoesNotTickWithinItsOwnTickAndCountsFromItsEnd) {
  std::vector<int> ticks;
  bool isIn = false;
  Timer timer(control_.surface(), [&] {
    EXPECT_FALSE(std::exchange(isIn, true));
    ticks.push_back(now_);
    if (ticks.size() == 1) form_.advance(45);
    isIn = false;
  });
  start(timer_, 20);
  start(timer, 10);
  form_.advance(10);
  EXPECT_EQ(ticks_.size(), 2U);
  form_.advance(9);
  EXPECT_EQ(ticks.size(), 1U);
  form_.advance(1);
  EXPECT_EQ(ticks.size(), 2U);
}

TEST_F(TimerTest, ThatBeginsAnewInItsTickMayTickWithinIt) {
  int ticks = 0;
  Timer timer(control_.surface(), [&] {
    if (++ticks > 1) return;
    start(timer, 10);
    form_.advance(10);
    EXPECT_EQ(ticks, 2);
  });
  start(timer, 10);
  form_.advance(10);
  EXPECT_EQ(ticks, 2);
}

TEST_F(TimerTest, AnErrorOfATickGoesToTheFormAndTheTimerGoesOn) {
  Timer timer(control_.surface(), [] { throw RuntimeError(RuntimeError::Overflow); });
  Timer hungry(control_.surface(), [] { throw std::bad_alloc(); });
  start(timer, 10);
  start(hungry, 15);
  form_.advance(20);
  ASSERT_EQ(form_.errors().size(), 3U);
  EXPECT_EQ(form_.errors()[0].number(), RuntimeError::Overflow);
  EXPECT_EQ(form_.errors()[1].number(), RuntimeError::OutOfMemory);
}

TEST_F(TimerTest, ATickThatComesLateFromAStoppedTimerIsNone) {
  start(timer_, 10);
  timer_.Enabled(False);
  timer_.tick();
  EXPECT_TRUE(ticks_.empty());
}

TEST_F(TimerTest, WithoutAnythingToDoItTicksQuietly) {
  Timer timer(control_.surface(), {});
  start(timer, 10);
  form_.advance(10);
  EXPECT_TRUE(form_.errors().empty());
}

TEST_F(TimerTest, TimeGoesOnlyForward) {
  EXPECT_EQ(errorOf([&] { form_.advance(-1); }), RuntimeError::InvalidPropertyValue);
  form_.advance(0);
  form_.advance(std::numeric_limits<Long>::max());
  form_.advance(std::numeric_limits<Long>::max());
  start(timer_, 1);
  form_.advance(1);
  EXPECT_EQ(ticks_.size(), 1U);
}

}  // namespace
}  // namespace tessaly::tests
