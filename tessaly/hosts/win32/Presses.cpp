#include "tessaly/hosts/win32/Presses.h"

#include <array>
#include <utility>

#include "tessaly/hosts/win32/ChildWindow.h"

namespace tessaly::win32 {
namespace {

/// Where no control has its pixels.
constexpr PixelPoint kOutsideOfAll{-1, -1};

/// Left, right and middle.
constexpr std::array<MouseState, 3> kButtonsOfMouse{1, 2, 4};

/// As the messages tell that this thread has taken so far, whoever has taken them.
bool isDown(int key) { return GetKeyState(key) < 0; }

}  // namespace

void Presses::pressed(MouseState button, MouseState shift, PixelPoint point) {
  endLostForNewPress();
  held_ = static_cast<MouseState>(held_ | button);
  place_->raise([=](UserControl& control) { control.mouseDown(button, shift, point); });
}

void Presses::released(MouseState button, MouseState shift, PixelPoint point) {
  held_ = static_cast<MouseState>(held_ & ~button);
  lostButtons_ = static_cast<MouseState>(lostButtons_ & ~button);
  place_->raise([=](UserControl& control) { control.mouseUp(button, shift, point); });
}

// The mouse's press and a key's do not mix.
void Presses::pressKey(int key, PixelPoint point) {
  endLostForNewPress();
  if (hasMouse()) return;
  watchedKey_ = key != kNoKey && isDown(key) ? key : kNoKey;
  key_.begin(point, [this](const auto& event) { place_->raise(event); });
  place_->tellState();
}

void Presses::releaseKey(PixelPoint point) {
  if (!isKeyLost_) endKey(point);
}

void Presses::endKey(PixelPoint point) {
  key_.end(point, [this](const auto& event) { place_->raise(event); });
  place_->tellState();
}

bool Presses::hasMouse() const { return place_->window() != nullptr && ::GetCapture() == place_->window(); }

bool Presses::isHeld() const { return (key_.isHeld() && !isKeyLost_) || hasMouse(); }

void Presses::captureLost() {
  place_->raise([](UserControl& control) { control.captureLost(); });
  place_->tellState();
  if (held_ == 0) return;
  lostButtons_ = static_cast<MouseState>(lostButtons_ | std::exchange(held_, MouseState{0}));
  tellLostLater();
}

// A dialog that opens in a key's click leaves the pointer where the mouse has it.
void Presses::focusLost() {
  key_.forgetPointer();
  keyLost();
}

void Presses::keyLost() {
  if (!key_.isHeld() || isKeyLost_) return;
  isKeyLost_ = true;
  place_->tellState();
  tellLostLater();
}

// A menu takes the release of a key that its window still has the focus for.
bool Presses::isKeyUp() const { return key_.isHeld() && watchedKey_ != kNoKey && !isDown(watchedKey_); }

void Presses::settle() {
  if (isKeyUp()) keyLost();
  tellLost();
}

// Not at once: a window that is being destroyed is hidden and loses the focus, and its host is to hear
// nothing then. The message goes with the window.
void Presses::tellLostLater() {
  isToldBehindEvent_ = events_ > 0;
  if (isToldBehindEvent_ || place_->window() == nullptr) return;
  PostMessageW(place_->window(), kLostMessage, 0, 0);
}

void Presses::tellLost() {
  isToldBehindEvent_ = events_ > 0;
  if (isToldBehindEvent_) return;
  const MouseState lost = std::exchange(lostButtons_, MouseState{0});
  if (lost != 0) outside_ = kOutsideOfAll;
  for (const MouseState button : kButtonsOfMouse) {
    if ((lost & button) == 0) continue;
    place_->raise([=](UserControl& control) { control.mouseUp(button, 0, kOutsideOfAll); });
  }
  outside_.reset();
  if (std::exchange(isKeyLost_, false)) endKey(kOutsideOfAll);
}

void Presses::endEvent() {
  if (--events_ == 0 && isToldBehindEvent_) tellLost();
}

// One that comes within an event takes the place of what has been lost there: it has a release of its own.
void Presses::endLostForNewPress() {
  tellLost();
  lostButtons_ = 0;
  isKeyLost_ = false;
}

}  // namespace tessaly::win32
