// A picture button that can be reached with Tab: the focus, and keys that press it.

#include <gtest/gtest.h>

#include <string>

#include "tests/hosts/win32/FormWindow.h"
#include "tests/hosts/win32/MemoryPicture.h"

namespace tessaly::tests {
namespace {

class KeyboardTest : public testing::Test {
 protected:
  KeyboardTest() {
    button_.backcolor(0x808080);
    button_.events.OnButtonClick = [this] { ++clicks_; };
    button_.events.OnButtonSelected = [this] { ++selections_; };
    other_.backcolor(0x808080);
    pump();
  }

  PictureReference look() const { return shown(window_); }

  /// Its colour in the middle of the upper edge, as a surface's pixel has it.
  std::uint32_t edge() const { return look()->pixels()[20] & 0xFFFFFFU; }

  static constexpr std::uint32_t kSunken = 0x626262;
  static constexpr std::uint32_t kNone = 0x808080;

  FormWindow form_;
  transparentBitmap& other_ = form_.addButton({100, 20});
  HWND otherWindow_ = form_.button();
  transparentBitmap& button_ = form_.addButton({20, 20}, WS_TABSTOP);
  HWND window_ = form_.button();
  int clicks_ = 0;
  int selections_ = 0;
};

TEST_F(KeyboardTest, TabReachesOnlyTheButtonThatAllowsIt) {
  SetFocus(form_.window());
  keyDown(VK_TAB);
  keyUp(VK_TAB);
  EXPECT_EQ(GetFocus(), window_);
  keyDown(VK_TAB);
  keyUp(VK_TAB);
  EXPECT_EQ(GetFocus(), window_);
}

TEST_F(KeyboardTest, TheFocusIsSeen) {
  const PictureReference without = look();
  SetFocus(window_);
  EXPECT_FALSE(samePixels(*look(), *without));
  EXPECT_FALSE(samePixels(*printed(window_), *without));
  SetFocus(form_.window());
  EXPECT_TRUE(samePixels(*look(), *without));
}

TEST_F(KeyboardTest, AFocusThatItsHostSetsIsNotSeenWhereKeysAreOff) {
  const PictureReference without = shown(otherWindow_);
  SetFocus(otherWindow_);
  EXPECT_TRUE(samePixels(*shown(otherWindow_), *without));
}

TEST_F(KeyboardTest, SpacePressesAndItsReleaseClicks) {
  SetFocus(window_);
  keyDown(VK_SPACE);
  EXPECT_EQ(edge(), kSunken);
  EXPECT_EQ(clicks_, 0);
  EXPECT_EQ(GetCapture(), nullptr);
  keyUp(VK_SPACE);
  EXPECT_EQ(clicks_, 1);
  EXPECT_TRUE(pumpUntil([this] { return edge() == kNone; }));
  EXPECT_EQ(selections_, 1);
}

TEST_F(KeyboardTest, ReturnClicksOnceHoweverLongItIsHeld) {
  SetFocus(window_);
  keyDown(VK_RETURN);
  EXPECT_EQ(clicks_, 1);
  keyDown(VK_RETURN);
  keyUp(VK_RETURN);
  EXPECT_EQ(clicks_, 1);
  EXPECT_TRUE(pumpUntil([this] { return edge() == kNone; }));
}

TEST_F(KeyboardTest, TheMouseEventsTellTheMiddle) {
  std::string told;
  const auto note = [&](const char* name) {
    return [&told, name](std::int16_t& button, std::int16_t&, float& x, float& y) {
      told += std::string(name) + std::to_string(button) + ' ' + std::to_string(static_cast<int>(x)) + ',' +
              std::to_string(static_cast<int>(y)) + ' ';
    };
  };
  button_.events.MouseMove = note("move ");
  button_.events.MouseDown = note("down ");
  button_.events.MouseUp = note("up ");
  SetFocus(window_);
  keyDown(VK_SPACE);
  keyUp(VK_SPACE);
  EXPECT_EQ(told, "move 0 24,24 down 1 24,24 up 1 24,24 ");
}

TEST_F(KeyboardTest, AHeldKeyClicksAgainAndAgainWhereTheButtonDoes) {
  button_.automaticClick(True);
  button_.automaticClickFirstTiming(10);
  button_.automaticClickTiming(10);
  SetFocus(window_);
  keyDown(VK_SPACE);
  keyDown(VK_SPACE);
  EXPECT_EQ(clicks_, 1);
  EXPECT_TRUE(pumpUntil([this] { return clicks_ >= 3; }));
  keyUp(VK_SPACE);
  const int clicks = clicks_;
  EXPECT_TRUE(pumpUntil([this] { return edge() == kNone; }));
  EXPECT_EQ(clicks_, clicks);
}

TEST_F(KeyboardTest, AKeyThatIsReleasedElsewhereComesToNothing) {
  SetFocus(window_);
  keyDown(VK_SPACE);
  SetFocus(form_.window());
  pump();
  EXPECT_EQ(edge(), kNone);
  keyUp(VK_SPACE);
  EXPECT_EQ(clicks_, 0);
}

TEST_F(KeyboardTest, AKeyThatIsHeldWhileTheWindowIsDisabledComesToNothing) {
  SetFocus(window_);
  keyDown(VK_SPACE);
  EnableWindow(window_, FALSE);
  pump();
  EXPECT_EQ(edge(), kNone);
  EnableWindow(window_, TRUE);
  SetFocus(window_);
  keyUp(VK_SPACE);
  EXPECT_EQ(clicks_, 0);
}

// WM_ENABLE was passed over, so that a key was still held where the focus had gone before it came.
TEST_F(KeyboardTest, TheWordThatTheWindowIsDisabledIsEnough) {
  SetFocus(window_);
  keyDown(VK_SPACE);
  SendMessageW(window_, WM_ENABLE, TRUE, 0);
  EXPECT_EQ(edge(), kSunken);
  SendMessageW(window_, WM_ENABLE, FALSE, 0);
  pump();
  EXPECT_EQ(edge(), kNone);
  keyUp(VK_SPACE);
  EXPECT_EQ(clicks_, 0);
}

TEST_F(KeyboardTest, AKeyThatIsHeldWhereAllPressesAreGivenUpComesToNothing) {
  SetFocus(window_);
  keyDown(VK_SPACE);
  SendMessageW(window_, WM_CANCELMODE, 0, 0);
  pump();
  EXPECT_EQ(edge(), kNone);
  keyUp(VK_SPACE);
  EXPECT_EQ(clicks_, 0);
}

// With Alt held Windows sends the release of a key as another message.
TEST_F(KeyboardTest, AKeyThatIsReleasedWithAltHeldClicks) {
  SetFocus(window_);
  keyDown(VK_SPACE);
  constexpr LPARAM kWithAlt = (LPARAM{1} << 29) | 1;
  SendMessageW(window_, WM_SYSKEYUP, VK_RETURN, kWithAlt);
  EXPECT_EQ(clicks_, 0);
  SendMessageW(window_, WM_SYSKEYUP, VK_SPACE, kWithAlt);
  EXPECT_EQ(clicks_, 1);
  EXPECT_NE(edge(), kSunken);
  keyUp(VK_SPACE);
  EXPECT_EQ(clicks_, 1);
}

TEST_F(KeyboardTest, ADialogInTheClickOfTheKeysPressEndsThePress) {
  button_.automaticClick(True);
  button_.automaticClickFirstTiming(10);
  button_.events.OnButtonClick = [this] {
    ++clicks_;
    passDialog(form_.window());
  };
  SetFocus(window_);
  keyDown(VK_SPACE);
  keyUp(VK_SPACE);
  EXPECT_EQ(clicks_, 1);
  EXPECT_TRUE(pumpUntil([this] { return edge() == kNone; }));
  EXPECT_EQ(clicks_, 1);
}

// The timer's own click had shown the dialog, and the timer began anew behind the release.
TEST_F(KeyboardTest, ADialogInARepeatedClickOfTheKeyEndsThePress) {
  button_.automaticClick(True);
  button_.automaticClickFirstTiming(10);
  button_.automaticClickTiming(10);
  SetFocus(window_);
  keyDown(VK_SPACE);
  button_.events.OnButtonClick = [this] {
    ++clicks_;
    passDialog(form_.window());
  };
  EXPECT_TRUE(pumpUntil([this] { return clicks_ == 2; }));
  EXPECT_TRUE(pumpUntil([this] { return edge() == kNone; }));
  constexpr int kWatchingThePointer = 2;
  EXPECT_EQ(endTimersOf(window_), kWatchingThePointer);
  keyUp(VK_SPACE);
  EXPECT_EQ(clicks_, 2);
}

TEST_F(KeyboardTest, AReleaseThatAMenuTakesIsFoundOutBeforeTheButtonClicksAgain) {
  button_.automaticClick(True);
  SetFocus(window_);
  keyDown(VK_SPACE);
  keyUpTakenElsewhere(VK_SPACE);
  EXPECT_EQ(edge(), kSunken);
  EXPECT_TRUE(pumpUntil([this] { return edge() == kNone; }));
  EXPECT_EQ(clicks_, 1);
}

TEST_F(KeyboardTest, AReleaseThatAMenuTakesIsFoundOutBeforeTheMouseIsHeard) {
  SetFocus(window_);
  keyDown(VK_SPACE);
  keyUpTakenElsewhere(VK_SPACE);
  movePointer(window_, {5, 5});
  press();
  release();
  EXPECT_EQ(clicks_, 1);
}

TEST_F(KeyboardTest, AKeysPressThatAProgramHasMadeUpGoesOn) {
  SendMessageW(window_, WM_KEYDOWN, VK_SPACE, 1);
  movePointer(window_, {5, 5});
  EXPECT_EQ(edge(), kSunken);
  SendMessageW(window_, WM_KEYUP, VK_SPACE, 1);
  EXPECT_EQ(clicks_, 1);
}

// The control went on finding the pointer in its middle until the dialog was closed.
TEST_F(KeyboardTest, ADialogInTheClickOfReturnLeavesThePointerToTheMouse) {
  int rests = 0;
  button_.events.OnButtonSelectedTiming = [&] { ++rests; };
  button_.events.OnButtonClick = [this] {
    SetFocus(form_.window());
    EXPECT_TRUE(pumpUntil([this] { return edge() == kNone; }));
  };
  SetFocus(window_);
  keyDown(VK_RETURN);
  keyUp(VK_RETURN);
  EXPECT_EQ(rests, 0);
}

TEST_F(KeyboardTest, AHostThatDestroysTheWindowMeanwhileHearsNothing) {
  int released = 0;
  button_.events.MouseUp = [&](std::int16_t&, std::int16_t&, float&, float&) { ++released; };
  SetFocus(window_);
  keyDown(VK_SPACE);
  DestroyWindow(window_);
  pump();
  EXPECT_EQ(released, 0);
  keyUp(VK_SPACE);
}

TEST_F(KeyboardTest, TheWindowMayBeDestroyedInAClickByKey) {
  button_.events.MouseDown = [this](std::int16_t&, std::int16_t&, float&, float&) { DestroyWindow(window_); };
  SetFocus(window_);
  keyDown(VK_SPACE);
  keyUp(VK_SPACE);
  EXPECT_FALSE(IsWindow(window_));
  EXPECT_EQ(clicks_, 0);
}

TEST_F(KeyboardTest, OtherKeysAndAButtonThatDoesNotAllowItDoNothing) {
  SetFocus(window_);
  keyDown('A');
  keyUp('A');
  EXPECT_EQ(selections_, 0);
  int clicks = 0;
  other_.events.OnButtonClick = [&] { ++clicks; };
  SetFocus(otherWindow_);
  keyDown(VK_SPACE);
  keyUp(VK_SPACE);
  EXPECT_EQ(clicks, 0);
}

TEST_F(KeyboardTest, TheLetterInItsTextClicksItInADialog) {
  SetWindowTextW(window_, L"&Open");
  SetFocus(form_.window());
  MSG message{form_.window(), WM_SYSCHAR, 'o', 0x20000000, 0, {}};
  EXPECT_TRUE(IsDialogMessageW(form_.window(), &message));
  pump();
  EXPECT_EQ(clicks_, 1);
}

TEST_F(KeyboardTest, TheMouseIsNotHeardWhileAKeyIsHeld) {
  SetFocus(window_);
  keyDown(VK_SPACE);
  movePointer(window_, {5, 5});
  press();
  release();
  EXPECT_EQ(clicks_, 0);
  keyUp(VK_SPACE);
  EXPECT_EQ(clicks_, 1);
}

}  // namespace
}  // namespace tessaly::tests
