// Windows that are destroyed while an event of their control runs.

#include <gtest/gtest.h>

#include "tests/hosts/win32/ControlOfTestsWindow.h"

namespace tessaly::tests {
namespace {

class WindowsThatGoTest : public testing::TestWithParam<bool> {
 protected:
  ~WindowsThatGoTest() override {
    EXPECT_TRUE(wasUsable_);
    EXPECT_EQ(ControlOfTests::count(), 0);
  }

  /// In an event the window is destroyed, alone or with its form, and then the control is used once more.
  void letGoIn(const std::string& event) {
    control_.on[event] = [this] {
      DestroyWindow(GetParam() ? place_.window() : place_.form().window());
      control_.surface().Refresh();
      control_.surface().Width(300);
      control_.surface().MousePointer(11);
      control_.surface().PropertyChanged(u"Size");
      Container& container = control_.surface().container();
      container.setToolTip(u"none");
      container.setCapture(true);
      wasUsable_ = container.hWnd() == 0 && !container.isVisible() && ControlOfTests::count() == 1;
    };
  }

  ControlOfTestsWindow place_;
  ControlOfTests& control_ = place_.control();
  bool wasUsable_ = false;
};

TEST_P(WindowsThatGoTest, InAMove) {
  letGoIn("MouseMove");
  movePointer(place_.window(), {1, 1});
}

TEST_P(WindowsThatGoTest, InAPress) {
  letGoIn("MouseDown");
  movePointer(place_.window(), {1, 1});
  press();
  release();
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_P(WindowsThatGoTest, InARelease) {
  letGoIn("MouseUp");
  movePointer(place_.window(), {1, 1});
  press();
  release();
}

TEST_P(WindowsThatGoTest, InAResize) {
  letGoIn("Resize");
  MoveWindow(place_.window(), 0, 0, 5, 5, FALSE);
}

TEST_P(WindowsThatGoTest, InAPaint) {
  letGoIn("Paint");
  InvalidateRect(place_.window(), nullptr, FALSE);
  pump();
}

TEST_P(WindowsThatGoTest, WithAnErrorBehindIt) {
  letGoIn("MouseMove");
  control_.on["MouseMove"] = [this, letGo = control_.on["MouseMove"]] {
    letGo();
    throw RuntimeError(RuntimeError::Overflow);
  };
  movePointer(place_.window(), {1, 1});
  EXPECT_EQ(place_.form().errors(), std::vector<Long>{RuntimeError::Overflow});
}

INSTANTIATE_TEST_SUITE_P(Destroyed, WindowsThatGoTest, testing::Bool(),
                         [](const auto& tested) { return tested.param ? "TheWindow" : "ItsForm"; });

}  // namespace
}  // namespace tessaly::tests
