#include "tessaly/hosts/qt/Presses.h"

#include <array>
#include <new>
#include <utility>

#include "tessaly/hosts/qt/WidgetPlace.h"

namespace tessaly::qt {
namespace {

constexpr PixelPoint kOutside{-1, -1};

/// Left, right and middle.
constexpr std::array<MouseState, 3> kButtons{1, 2, 4};

}  // namespace

void Presses::pressed(MouseState button, MouseState shift, PixelPoint point) {
  forgetKeyPointer();
  endLostForNewPress();
  mouse_.pressed(button);
  // A pointer that has rested where the mouse was lost comes back without a move of its own.
  if (std::exchange(isMoveOwed_, false)) {
    place_->raise([=](UserControl& control) { control.mouseMove(0, shift, point); });
  }
  place_->raise([=](UserControl& control) { control.mouseDown(button, shift, point); });
}

void Presses::moved(MouseState buttons, MouseState shift, PixelPoint point) {
  if (buttons == 0) captureLost();
  tellLost();
  isMoveOwed_ = false;
  place_->raise([=](UserControl& control) { control.mouseMove(buttons, shift, point); });
}

void Presses::released(MouseState button, MouseState shift, PixelPoint point) {
  mouse_.released(button);
  lostButtons_ = static_cast<MouseState>(lostButtons_ & ~button);
  place_->raise([=](UserControl& control) { control.mouseUp(button, shift, point); });
}

void Presses::pressKey(PixelPoint point) {
  endLostForNewPress();
  if (!isHeld()) key_.begin(point, [this](const auto& event) { place_->raise(event); });
}

void Presses::releaseKey(PixelPoint point) {
  if (!isKeyLost_) endKey(point);
}

void Presses::endKey(PixelPoint point) {
  key_.end(point, [this](const auto& event) { place_->raise(event); });
}

std::optional<PixelPoint> Presses::pointer() const { return isReleasedOutside_ ? kOutside : key_.pointer(); }

void Presses::keyLost() {
  if (!key_.isHeld()) return;
  isKeyLost_ = true;
  tellLostLater();
}

void Presses::allLost() {
  captureLost();
  keyLost();
}

void Presses::captureLost() {
  if (!isCaptured_) return;
  isCaptured_ = false;
  place_->userControl().captureLost();
  lostButtons_ = static_cast<MouseState>(lostButtons_ | mouse_.takeAll());
  tellLostLater();
}

void Presses::beforeTick() {
  if (mouse_.isTaken(place_->widget())) captureLost();
  tellLost();
}

// Not at once: a window that is being destroyed hides its widgets, and its host is to hear nothing then.
// Where there is no memory for that, it is told before the next tick or move.
void Presses::tellLostLater() try {
  isToldBehindEvent_ = events_ > 0;
  if (isToldBehindEvent_) return;
  QMetaObject::invokeMethod(
      &place_->widget(), [this] { tellLost(); }, Qt::QueuedConnection);
} catch (const std::bad_alloc&) {
  return;
}

void Presses::tellLost() {
  isToldBehindEvent_ = events_ > 0;
  if (isToldBehindEvent_) return;
  const auto held = place_->shared_from_this();
  const MouseState lost = std::exchange(lostButtons_, MouseState{0});
  if (lost != 0) isMoveOwed_ = true;
  isReleasedOutside_ = true;
  for (const MouseState button : kButtons) {
    if ((lost & button) == 0) continue;
    place_->raise([=](UserControl& control) { control.mouseUp(button, 0, kOutside); });
  }
  isReleasedOutside_ = false;
  if (std::exchange(isKeyLost_, false)) endKey(kOutside);
}

void Presses::endEvent() {
  if (--events_ == 0 && isToldBehindEvent_) tellLost();
}

// One that comes within an event takes the place of what has been lost there: it has a release of its own.
void Presses::endLostForNewPress() {
  tellLost();
  forgetLost();
}

void Presses::forgetLost() {
  lostButtons_ = 0;
  isKeyLost_ = false;
}

}  // namespace tessaly::qt
