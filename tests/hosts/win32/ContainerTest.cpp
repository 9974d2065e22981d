// What a control asks of its child window, and what the window brings it.

#include <gtest/gtest.h>

#include <algorithm>

#include "tessaly/forms/Label.h"
#include "tessaly/forms/Screen.h"
#include "tests/hosts/win32/ControlOfTestsWindow.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

using Events = std::vector<std::string>;

class ContainerTest : public testing::Test {
 protected:
  ~ContainerTest() override {
    ControlOfTests::onInit() = {};
    place_.reset();
    EXPECT_EQ(ControlOfTests::count(), 0);
  }

  HWND window() const { return place_->window(); }
  ControlOfTests& control() const { return place_->control(); }
  Container& container() const { return place_->container(); }

  Events eventsOf(const std::function<void()>& action) const {
    control().events.clear();
    action();
    return control().events;
  }

  std::unique_ptr<ControlOfTestsWindow> place_ = std::make_unique<ControlOfTestsWindow>();
};

TEST_F(ContainerTest, ANewControlIsInitialisedThenResizedOnce) {
  const Events events(control().events.begin(), control().events.begin() + 2);
  EXPECT_EQ(events, (Events{"InitProperties", "Resize"}));
  EXPECT_EQ(std::count(control().events.begin(), control().events.end(), "Resize"), 1);
  EXPECT_EQ(container().size(), (PixelSize{40, 30}));
  EXPECT_EQ(container().hWnd(), reinterpret_cast<platform::WindowHandle>(window()));
}

TEST_F(ContainerTest, WhatABeginningRaisesIsReportedAndThereIsNoWindow) {
  ControlOfTests::onInit() = [](ControlOfTests&) { throw RuntimeError(RuntimeError::TypeMismatch); };
  EXPECT_EQ(place_->form().add(kClassOfTests, {0, 0, 10, 10}), nullptr);
  EXPECT_EQ(place_->form().errors(), std::vector<Long>{RuntimeError::TypeMismatch});
  EXPECT_EQ(ControlOfTests::count(), 1);
}

TEST_F(ContainerTest, AControlMayGoInItsOwnBeginning) {
  ControlOfTests::onInit() = [](ControlOfTests& made) {
    DestroyWindow(reinterpret_cast<HWND>(made.surface().hWnd()));
  };
  EXPECT_EQ(place_->form().add(kClassOfTests, {0, 0, 10, 10}), nullptr);
  EXPECT_EQ(ControlOfTests::count(), 1);
}

TEST_F(ContainerTest, AnotherSizeOfTheWindowIsAResize) {
  EXPECT_EQ(eventsOf([this] { MoveWindow(window(), 0, 0, 50, 60, FALSE); }), Events{"Resize"});
  EXPECT_EQ(container().size(), (PixelSize{50, 60}));
  EXPECT_EQ(eventsOf([this] { MoveWindow(window(), 5, 5, 50, 60, FALSE); }), Events{});
}

TEST_F(ContainerTest, ASizeThatTheControlAssignsIsThatOfTheInside) {
  const HWND framed = place_->form().add(kClassOfTests, {100, 100, 140, 130}, WS_BORDER);
  Container& inFrame = controlOf(framed).surface().container();
  EXPECT_EQ(inFrame.size(), (PixelSize{38, 28}));
  controlOf(framed).events.clear();
  controlOf(framed).surface().Width(15 * 70);
  EXPECT_EQ(controlOf(framed).events, Events{"Resize"});
  RECT outer{};
  GetWindowRect(framed, &outer);
  EXPECT_EQ(outer.right - outer.left, 72);
  EXPECT_EQ(inFrame.size(), (PixelSize{70, 28}));
}

TEST_F(ContainerTest, WhatAnAssignedSizeRaisesComesOutOfTheAssignment) {
  control().on["Resize"] = [] { throw RuntimeError(RuntimeError::Overflow); };
  EXPECT_EQ(errorOf([this] { control().surface().Width(300); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([this] { container().setSize({-1, 5}); }), RuntimeError::InvalidPropertyValue);
  EXPECT_EQ(errorOf([this] { container().setSize({5, 32768}); }), RuntimeError::InvalidPropertyValue);
  EXPECT_TRUE(place_->form().errors().empty());
  MoveWindow(window(), 0, 0, 50, 60, FALSE);
  EXPECT_EQ(place_->form().errors(), std::vector<Long>{RuntimeError::Overflow});
}

TEST_F(ContainerTest, AResizeMayAssignTheSizeAgain) {
  control().on["Resize"] = [this] { control().surface().Height(15 * 33); };
  EXPECT_EQ(eventsOf([this] { control().surface().Width(15 * 44); }), (Events{"Resize", "Resize"}));
  EXPECT_EQ(container().size(), (PixelSize{44, 33}));
}

TEST_F(ContainerTest, OnlyTheWindowsOwnBitMakesItVisible) {
  EXPECT_TRUE(container().isVisible());
  ShowWindow(place_->form().window(), SW_HIDE);
  EXPECT_TRUE(container().isVisible());
  ShowWindow(window(), SW_HIDE);
  EXPECT_FALSE(container().isVisible());
}

TEST_F(ContainerTest, AWindowThatIsHiddenHasTheMouseNoLonger) {
  movePointer(window(), {5, 6});
  press();
  EXPECT_EQ(GetCapture(), window());
  ShowWindow(window(), SW_HIDE);
  EXPECT_EQ(GetCapture(), nullptr);
  release();
  ShowWindow(window(), SW_SHOW);
  pump();
  press();
  EXPECT_EQ(control().events.back(), "MouseDown 1 0 5,6");
  EXPECT_EQ(GetCapture(), window());
  release();
}

// On screens to the left of the first one and above it, places are below 0.
TEST_F(ContainerTest, PlacesBelowZeroAreToldAsSuch) {
  const LPARAM place = MAKELPARAM(static_cast<WORD>(-5), static_cast<WORD>(-700));
  EXPECT_EQ(eventsOf([&] { SendMessageW(window(), WM_MOUSEMOVE, MK_LBUTTON, place); }),
            Events{"MouseMove 1 0 -5,-700"});
  const PixelPoint origin = container().ScreenToClient({0, 0});
  EXPECT_EQ(container().ScreenToClient({-2000, -1500}), (PixelPoint{origin.x - 2000, origin.y - 1500}));
}

TEST_F(ContainerTest, ALargerWindowThanAControlCanBeGivesItAllThatItCanTake) {
  MoveWindow(window(), 0, 0, 40000, 30, FALSE);
  EXPECT_GT(container().size().width, 40);
  EXPECT_LE(container().size().width, 32767);
}

TEST_F(ContainerTest, ThePointerIsFoundWhereverItIs) {
  movePointer(window(), {5, 6});
  EXPECT_EQ(container().ScreenToClient(container().GetCursorPos()), (PixelPoint{5, 6}));
  movePointer(window(), {200, 100});
  EXPECT_EQ(container().ScreenToClient(container().GetCursorPos()), (PixelPoint{200, 100}));
}

TEST_F(ContainerTest, ItRunsUnlessItsHostIsADesigner) {
  EXPECT_TRUE(container().UserMode());
  win32::hostingOf(window()).userMode = false;
  EXPECT_FALSE(container().UserMode());
}

TEST_F(ContainerTest, ItsHostHearsOfEachChangeOfAProperty) {
  std::vector<String> changed;
  win32::hostingOf(window()).onPropertyChanged = [&](std::u16string_view name) {
    changed.emplace_back(name);
  };
  control().surface().PropertyChanged(u"Size");
  EXPECT_EQ(changed, std::vector<String>{u"Size"});
  EXPECT_EQ(errorOf([this] { win32::hostingOf(place_->form().window()); }),
            RuntimeError::SubscriptOutOfRange);
}

TEST_F(ContainerTest, SystemColoursAreThoseOfTheUser) {
  for (const int number : {COLOR_BTNFACE, COLOR_WINDOW, COLOR_HIGHLIGHT}) {
    EXPECT_EQ(static_cast<DWORD>(container().systemColour(number)), GetSysColor(number));
  }
}

TEST_F(ContainerTest, ARefreshIsAtOnceAndALaterOneWhenThereIsTime) {
  EXPECT_EQ(eventsOf([this] { control().surface().Refresh(); }), Events{"Paint"});
  EXPECT_FALSE(GetUpdateRect(window(), nullptr, FALSE));
  EXPECT_EQ(eventsOf([this] { container().repaintLater(); }), Events{});
  EXPECT_TRUE(GetUpdateRect(window(), nullptr, FALSE));
  EXPECT_EQ(eventsOf([] { pump(); }), Events{"Paint"});
  EXPECT_FALSE(GetUpdateRect(window(), nullptr, FALSE));
}

TEST_F(ContainerTest, ASurfaceThatPersistsIsShownWithoutTheControl) {
  control().surface().BackColor(0x332211);
  control().surface().AutoRedraw(True);
  EXPECT_EQ(eventsOf([this] { control().surface().Refresh(); }), Events{});
  const HDC context = GetDC(window());
  EXPECT_EQ(GetPixel(context, 39, 29), 0x332211U);
  ReleaseDC(window(), context);
}

TEST_F(ContainerTest, ALabelIsDrawnAboveTheSurface) {
  Label label(control().surface());
  label.BackColor(0xFFFFFF);
  label.ForeColor(0x0000FF);
  label.Caption(u"M&M");
  label.Move(2, 3, 30, 20);
  control().surface().BackColor(0x332211);
  control().surface().Refresh();
  const HDC context = GetDC(window());
  EXPECT_EQ(GetPixel(context, 1, 3), 0x332211U);
  EXPECT_EQ(GetPixel(context, 31, 22), 0xFFFFFFU);
  bool hasText = false;
  for (int x = 2; x < 32; ++x) {
    for (int y = 3; y < 23; ++y) hasText = hasText || GetPixel(context, x, y) != 0xFFFFFF;
  }
  EXPECT_TRUE(hasText);
  ReleaseDC(window(), context);
}

TEST_F(ContainerTest, OtherWindowsAreNoControls) {
  EXPECT_EQ(win32::ChildWindow::of(place_->form().window()), nullptr);
  EXPECT_EQ(win32::ChildWindow::of(nullptr), nullptr);
  EXPECT_EQ(win32::ChildWindow::of(GetDesktopWindow()), nullptr);
  EXPECT_EQ(win32::pictureButtonOf(window()), nullptr);
}

}  // namespace
}  // namespace tessaly::tests
