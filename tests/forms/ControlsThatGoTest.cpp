// Controls, forms, timers and containers that go while an event of theirs runs.

#include <gtest/gtest.h>

#include <memory>

#include "tessaly/forms/Label.h"
#include "tessaly/forms/Line.h"
#include "tessaly/forms/PictureBox.h"
#include "tessaly/forms/Timer.h"
#include "tessaly/forms/headless/Form.h"
#include "tests/forms/ControlOfTests.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

using headless::Form;
using Events = std::vector<std::string>;

class ControlsThatGoTest : public testing::TestWithParam<bool> {
 protected:
  ~ControlsThatGoTest() override {
    form_.reset();
    EXPECT_EQ(ControlOfTests::count(), 0);
  }

  /// Lets go of the control, or of the whole form, and looks at the control, which must still be there.
  void letGo() {
    if (GetParam()) {
      form_->remove(control_);
    } else {
      form_.reset();
    }
    seen_ = control_.events.size();
    control_.surface().Refresh();
    control_.surface().Width(300);
  }

  void letGoIn(const std::string& event) {
    control_.on[event] = [this] { letGo(); };
  }

  std::unique_ptr<Form> form_ = std::make_unique<Form>();
  ControlOfTests& control_ = form_->add<ControlOfTests>({0, 0, 10, 10});
  headless::Place& place_ = form_->placeOf(control_);
  std::size_t seen_ = 0;
};

TEST_P(ControlsThatGoTest, InAMouseMove) {
  letGoIn("MouseMove");
  form_->movePointer({1, 1});
  EXPECT_EQ(seen_, 3U);
}

TEST_P(ControlsThatGoTest, InAPress) {
  letGoIn("MouseDown");
  form_->movePointer({1, 1});
  form_->press();
  EXPECT_EQ(ControlOfTests::count(), 0);
}

TEST_P(ControlsThatGoTest, InALabelsPress) {
  auto label = std::make_unique<Label>(control_.surface());
  label->Move(0, 0, 10, 10);
  label->onMouseDown = [&](MouseState, MouseState, float, float) {
    label.reset();
    letGo();
  };
  form_->movePointer({1, 1});
  form_->press();
  EXPECT_EQ(seen_, 3U);
  EXPECT_EQ(ControlOfTests::count(), 0);
}

TEST_P(ControlsThatGoTest, InARelease) {
  letGoIn("MouseUp");
  form_->movePointer({1, 1});
  form_->press();
  form_->release();
  EXPECT_EQ(ControlOfTests::count(), 0);
}

TEST_P(ControlsThatGoTest, InAResize) {
  letGoIn("Resize");
  place_.drag({20, 20});
  EXPECT_EQ(ControlOfTests::count(), 0);
}

TEST_P(ControlsThatGoTest, InAPaint) {
  letGoIn("Paint");
  EXPECT_EQ(place_.picture()->size(), (PixelSize{20, 10}));
  EXPECT_EQ(ControlOfTests::count(), 0);
}

TEST_P(ControlsThatGoTest, InASave) {
  letGoIn("WriteProperties");
  control_.size = 4;
  EXPECT_EQ(longOf(place_.save().ReadProperty(u"Size", Variant(Long{0}))), 4);
  EXPECT_EQ(ControlOfTests::count(), 0);
}

TEST_P(ControlsThatGoTest, InATickWithOtherTimersRunning) {
  int ticks = 0;
  Timer timer(control_.surface(), [&] {
    ++ticks;
    letGo();
  });
  auto second = std::make_unique<Timer>(control_.surface(), [&] { ++ticks; });
  for (Timer* each : {&timer, second.get()}) {
    each->Interval(10);
    each->Enabled(True);
  }
  control_.on["Resize"] = [&] {
    timer.Enabled(False);
    second.reset();
  };
  form_->advance(100);
  EXPECT_EQ(ticks, 1);
}

TEST_P(ControlsThatGoTest, AnErrorOfAnEventThatHasLetGoHarmsNothing) {
  control_.on["MouseMove"] = [this] {
    letGo();
    throw RuntimeError(RuntimeError::Overflow);
  };
  form_->movePointer({1, 1});
  EXPECT_EQ(ControlOfTests::count(), 0);
}

INSTANTIATE_TEST_SUITE_P(Removed, ControlsThatGoTest, testing::Bool(),
                         [](const auto& tested) { return tested.param ? "AControlGoes" : "AFormGoes"; });

TEST(ControlThatWasRemovedTest, HearsOfNothingAndHoldsNoCapture) {
  Form form;
  auto& other = form.add<ControlOfTests>({0, 0, 10, 10});
  auto& control = form.add<ControlOfTests>({0, 0, 10, 10});
  form.movePointer({1, 1});
  other.events.clear();
  control.on["MouseDown"] = [&] {
    form.remove(control);
    form.movePointer({2, 2});
    EXPECT_EQ(control.events.back(), "MouseDown 1 0 1,1");
  };
  form.press();
  EXPECT_EQ(other.events, (Events{"MouseMove 1 0 2,2"}));
}

// Its place knew no form any more, and nobody heard of the error.
TEST(ControlThatWasRemovedTest, StillTellsTheFormItsErrors) {
  Form form;
  auto& control = form.add<ControlOfTests>({0, 0, 10, 10});
  control.on["MouseMove"] = [&] {
    form.remove(control);
    throw RuntimeError(RuntimeError::Overflow);
  };
  form.movePointer({1, 1});
  ASSERT_EQ(form.errors().size(), 1U);
  EXPECT_EQ(form.errors()[0].number(), RuntimeError::Overflow);
}

TEST(ControlThatWasRemovedTest, GoesInTheEndOfItsOutermostEvent) {
  Form form;
  auto& control = form.add<ControlOfTests>({0, 0, 10, 10});
  auto& place = form.placeOf(control);
  control.on["Resize"] = [&] { form.remove(control); };
  control.on["MouseMove"] = [&] {
    place.drag({5, 5});
    EXPECT_EQ(ControlOfTests::count(), 1);
  };
  form.movePointer({1, 1});
  EXPECT_EQ(ControlOfTests::count(), 0);
}

TEST(TimerThatGoesTest, MayGoInItsOwnTick) {
  Form form;
  auto& control = form.add<ControlOfTests>({0, 0, 10, 10});
  int ticks = 0;
  std::unique_ptr<Timer> timer;
  const auto shared = std::make_shared<int>(1);
  timer = std::make_unique<Timer>(control.surface(), [&, shared] {
    timer.reset();
    ticks += *shared;
  });
  timer->Interval(10);
  timer->Enabled(True);
  form.advance(100);
  EXPECT_EQ(ticks, 1);
}

TEST(TimerThatGoesTest, LeavesNoTickBehind) {
  Form form;
  auto& control = form.add<ControlOfTests>({0, 0, 10, 10});
  int ticks = 0;
  {
    Timer timer(control.surface(), [&] { ++ticks; });
    timer.Interval(10);
    timer.Enabled(True);
    form.advance(10);
  }
  form.advance(100);
  EXPECT_EQ(ticks, 1);
}

/// A control that somebody else holds too.
struct SharedControl {
  explicit SharedControl(Container& container) : control(std::make_shared<ControlOfTests>(container)) {}
  std::shared_ptr<ControlOfTests> control;
};

/// A container that goes before its control.
class ContainerThatGoesTest : public testing::Test {
 protected:
  ContainerThatGoesTest() {
    Form form;
    held_ = form.add<SharedControl>({0, 0, 10, 10}).control;
    timer_ = std::make_unique<Timer>(held_->surface(), [] {});
    timer_->Interval(10);
    timer_->Enabled(True);
  }
  ~ContainerThatGoesTest() override { timer_.reset(); }

  std::shared_ptr<ControlOfTests> held_;

  std::unique_ptr<Timer> timer_;
};

TEST_F(ContainerThatGoesTest, LeavesAControlWithoutSizeAndWindow) {
  EXPECT_EQ(held_->surface().ScaleWidth(), 0);
  EXPECT_EQ(held_->surface().hWnd(), 0);
  held_->surface().Width(300);
  EXPECT_EQ(held_->surface().Width(), 0);
  EXPECT_TRUE(held_->surface().picture()->isEmpty());
}

TEST_F(ContainerThatGoesTest, LeavesAScreenThatKeepsNothing) {
  Screen& screen = held_->surface().container().screen();
  screen.MousePointer(11);
  EXPECT_EQ(screen.MousePointer(), 0);
}

TEST_F(ContainerThatGoesTest, LeavesObjectsThatStillWork) {
  UserControl& surface = held_->surface();
  surface.AutoRedraw(True);
  surface.Cls();
  surface.Refresh();
  surface.MousePointer(99);
  surface.PropertyChanged(u"Size");
  PictureBox box(surface);
  box.AutoRedraw(True);
  box.Width(4);
  box.Height(4);
  EXPECT_EQ(box.Image()->size(), (PixelSize{4, 4}));
  timer_->Interval(20);
  EXPECT_EQ(timer_->Interval(), 20);
  Label label(surface);
  label.Move(0, 0, 5, 5);
  Line line(surface);
  line.Visible(True);
  surface.mouseDown(1, 0, {7, 7});
  EXPECT_EQ(held_->events.back(), "MouseDown 1 0 7,7");
}

}  // namespace
}  // namespace tessaly::tests
