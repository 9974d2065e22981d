// A picture button in a real window, with real input: the pointer moves, buttons go down and up, timers tick.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tessaly/hosts/win32/Controls.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Drawing.h"
#include "tests/hosts/win32/FormWindow.h"

namespace tessaly::tests {
namespace {

constexpr OLE_COLOR kBackground = 0x808080;
constexpr COLORREF kLight = 0x9E9E9E;
constexpr COLORREF kDark = 0x626262;
constexpr PixelPoint kInside{24, 24};
constexpr PixelPoint kOutside{120, 120};

enum class Border { None, Raised, Sunken, Unknown };

class PictureButtonInputTest : public testing::Test {
 protected:
  PictureButtonInputTest() {
    button_.backcolor(kBackground);
    button_.events.OnButtonClick = [this] { ++clicks_; };
    button_.events.OnButtonSelected = [this] { ++selections_; };
    button_.events.OnButtonSelectedTiming = [this] { ++rests_; };
    pump();
  }

  /// What is seen of the border on the window itself.
  Border border() const {
    UpdateWindow(form_.button());
    const HDC context = GetDC(form_.button());
    const COLORREF corner = GetPixel(context, 20, 0);
    const COLORREF end = GetPixel(context, 20, 47);
    ReleaseDC(form_.button(), context);
    if (corner == kBackground && end == kBackground) return Border::None;
    if (corner == kLight && end == kDark) return Border::Raised;
    return corner == kDark && end == kLight ? Border::Sunken : Border::Unknown;
  }

  void move(PixelPoint point) const { movePointer(form_.button(), point); }
  bool waitFor(Border wanted) const {
    return pumpUntil([&] { return border() == wanted; });
  }

  FormWindow form_;
  transparentBitmap& button_ = form_.addButton();
  int clicks_ = 0;
  int selections_ = 0;
  int rests_ = 0;
};

TEST_F(PictureButtonInputTest, HoverShowsTheRaisedBorderAndItsPollEndsIt) {
  EXPECT_EQ(border(), Border::None);
  move(kInside);
  EXPECT_EQ(border(), Border::Raised);
  EXPECT_EQ(selections_, 1);
  move(kOutside);
  EXPECT_TRUE(waitFor(Border::None));
  EXPECT_EQ(clicks_, 0);
}

TEST_F(PictureButtonInputTest, APointerThatRestsIsToldOnce) {
  move(kInside);
  EXPECT_TRUE(pumpUntil([this] { return rests_ == 1; }));
  move({25, 25});
  EXPECT_EQ(rests_, 1);
  EXPECT_EQ(selections_, 1);
}

TEST_F(PictureButtonInputTest, APressSinksTheBorderAndAReleaseInsideClicks) {
  move(kInside);
  press();
  EXPECT_EQ(border(), Border::Sunken);
  EXPECT_EQ(clicks_, 0);
  release();
  EXPECT_EQ(border(), Border::Raised);
  EXPECT_EQ(clicks_, 1);
}

TEST_F(PictureButtonInputTest, APressThatIsReleasedOutsideComesToNothing) {
  move(kInside);
  press();
  EXPECT_EQ(GetCapture(), form_.button());
  move(kOutside);
  EXPECT_EQ(border(), Border::Sunken);
  release();
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(border(), Border::None);
  EXPECT_EQ(clicks_, 0);
}

TEST_F(PictureButtonInputTest, AClickByADragOutAndBackLeavesTheRaisedBorderThere) {
  move(kInside);
  press();
  move(kOutside);
  ASSERT_TRUE(pumpUntilMessage(form_.button(), WM_TIMER));
  EXPECT_EQ(border(), Border::Sunken);
  move(kInside);
  EXPECT_EQ(border(), Border::Sunken);
  release();
  EXPECT_EQ(clicks_, 1);
  move(kOutside);
  EXPECT_TRUE(pumpUntil([this] { return rests_ == 1; }));
  EXPECT_EQ(border(), Border::Raised);
  EXPECT_EQ(selections_, 1);
}

TEST_F(PictureButtonInputTest, AutomaticClicksComeWhileTheButtonIsHeld) {
  button_.automaticClick(True);
  button_.automaticClickFirstTiming(60);
  button_.automaticClickTiming(20);
  move(kInside);
  press();
  EXPECT_EQ(clicks_, 1);
  EXPECT_TRUE(pumpUntil([this] { return clicks_ >= 4; }));
  release();
  const int clicks = clicks_;
  move(kOutside);
  EXPECT_TRUE(waitFor(Border::None));
  EXPECT_EQ(clicks_, clicks);
}

TEST_F(PictureButtonInputTest, OnlyTheLeftButtonAlonePresses) {
  move(kInside);
  press(MOUSEEVENTF_RIGHTDOWN);
  EXPECT_EQ(border(), Border::Raised);
  release(MOUSEEVENTF_RIGHTUP);
  EXPECT_EQ(clicks_, 0);
}

TEST_F(PictureButtonInputTest, MouseEventsTellButtonsAndShiftKeys) {
  std::vector<std::string> told;
  const auto note = [&](const char* name) {
    return [&told, name](std::int16_t& button, std::int16_t& shift, float& x, float& y) {
      told.push_back(std::string(name) + ' ' + std::to_string(button) + ' ' + std::to_string(shift) + ' ' +
                     std::to_string(static_cast<int>(x)) + ',' + std::to_string(static_cast<int>(y)));
    };
  };
  move(kInside);
  button_.events.MouseDown = note("down");
  button_.events.MouseMove = note("move");
  button_.events.MouseUp = note("up");
  keyDown(VK_SHIFT);
  press(MOUSEEVENTF_RIGHTDOWN);
  keyUp(VK_SHIFT);
  press(MOUSEEVENTF_MIDDLEDOWN);
  move({-3, 50});
  release(MOUSEEVENTF_MIDDLEUP);
  keyDown(VK_CONTROL);
  release(MOUSEEVENTF_RIGHTUP);
  keyUp(VK_CONTROL);
  EXPECT_EQ(told, (std::vector<std::string>{"down 2 1 24,24", "down 4 0 24,24", "move 6 0 -3,50",
                                            "up 4 0 -3,50", "up 2 2 -3,50"}));
}

TEST_F(PictureButtonInputTest, MovesOnAHoveringButtonComposeAndPaintNothing) {
  move(kInside);
  platform::fake::Drawing drawing;
  const platform::Override override(drawing);
  int moves = 0;
  button_.events.MouseMove = [&](auto&...) {
    if (GetUpdateRect(form_.button(), nullptr, FALSE) == FALSE) ++moves;
  };
  for (Long step = 1; step <= 20; ++step) move({kInside.x - step, kInside.y + step % 7});
  EXPECT_EQ(moves, 20);
  EXPECT_FALSE(GetUpdateRect(form_.button(), nullptr, FALSE));
  press();
  release();
  EXPECT_EQ(clicks_, 1);
  EXPECT_TRUE(drawing.calls().empty());
  button_.backcolor(0x102030);
  EXPECT_FALSE(drawing.calls().empty());
}

TEST_F(PictureButtonInputTest, AHandlerMaySetEnabledFalse) {
  button_.events.OnButtonClick = [this] {
    ++clicks_;
    button_.enabled(False);
  };
  move(kInside);
  press();
  release();
  EXPECT_EQ(clicks_, 1);
  EXPECT_EQ(border(), Border::None);
  press();
  release();
  EXPECT_EQ(clicks_, 1);
}

TEST_F(PictureButtonInputTest, EnabledFalseEndsTheAutomaticClicks) {
  button_.automaticClick(True);
  button_.automaticClickFirstTiming(20);
  button_.automaticClickTiming(20);
  button_.events.OnButtonClick = [this] {
    if (++clicks_ == 3) button_.enabled(False);
  };
  move(kInside);
  press();
  EXPECT_TRUE(pumpUntil([this] { return clicks_ == 3; }));
  EXPECT_EQ(border(), Border::None);
  release();
  EXPECT_EQ(clicks_, 3);
}

TEST_F(PictureButtonInputTest, AModalDialogMayBeShownInAClick) {
  int answer = 0;
  button_.events.OnButtonClick = [&] {
    ++clicks_;
    SetTimer(form_.window(), 1, 10, [](HWND window, UINT, UINT_PTR number, DWORD) {
      const HWND box = FindWindowW(L"#32770", L"A dialog of the tests");
      if (box == nullptr) return;
      KillTimer(window, number);
      PostMessageW(box, WM_COMMAND, IDYES, 0);
    });
    answer = MessageBoxW(form_.window(), L"Go on?", L"A dialog of the tests", MB_YESNO);
  };
  move(kInside);
  press();
  release();
  EXPECT_EQ(clicks_, 1);
  EXPECT_EQ(answer, IDYES);
  move(kOutside);
  EXPECT_TRUE(waitFor(Border::None));
}

TEST_F(PictureButtonInputTest, WhatAHandlerRaisesIsReportedAndEndsThere) {
  button_.events.OnButtonClick = [] { throw RuntimeError(RuntimeError::TypeMismatch); };
  button_.events.OnButtonSelected = [] { throw std::bad_alloc(); };
  move(kInside);
  press();
  release();
  EXPECT_EQ(form_.errors(), (std::vector<Long>{RuntimeError::OutOfMemory, RuntimeError::TypeMismatch}));
}

}  // namespace
}  // namespace tessaly::tests
