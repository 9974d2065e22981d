#include "tessaly/hosts/qt/WidgetPlace.h"

#include <array>
#include <utility>

#include "tessaly/hosts/qt/ApplicationScreen.h"
#include "tessaly/hosts/qt/Cursors.h"
#include "tessaly/hosts/qt/ErrorBox.h"
#include "tessaly/hosts/qt/Mouse.h"
#include "tessaly/hosts/qt/Painting.h"
#include "tessaly/hosts/qt/ShownText.h"
#include "tessaly/hosts/qt/SystemColours.h"
#include "tessaly/hosts/qt/Text.h"

namespace tessaly::qt {
namespace {

constexpr PixelPoint kOutside{-1, -1};

/// Left, right and middle.
constexpr std::array<MouseState, 3> kButtons{1, 2, 4};

/// True for as long as a call runs.
class During {
 public:
  explicit During(bool& flag) : flag_(&flag), before_(std::exchange(flag, true)) {}
  During(const During&) = delete;
  During& operator=(const During&) = delete;
  ~During() { *flag_ = before_; }

 private:
  bool* flag_;
  bool before_;
};

}  // namespace

void WidgetPlace::leave() {
  timers_.stopAll();
  forgetLost();
  if (userControl_ != nullptr) userControl_->leave();
}

UserControl& WidgetPlace::userControl() const {
  if (userControl_ == nullptr) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
  return *userControl_;
}

void WidgetPlace::widgetResized(PixelSize size) {
  if (isSettingSize_ || size == size_) return;
  size_ = size;
  raise([](UserControl& control) { control.resized(); });
}

// The control has the size that it asks for also where a layout or the widget's limits refuse it: the widget
// then shows what there is room for.
void WidgetPlace::setSize(PixelSize size) {
  if (size == size_) return;
  const auto held = shared_from_this();
  size_ = size;
  {
    const During setting(isSettingSize_);
    widget_->resize(toQSize(size));
  }
  userControl().resized();
}

// What the control shows at once while it is painted is shown by that.
void WidgetPlace::repaint() {
  if (!isPainting_) widget_->repaint();
}

void WidgetPlace::paint() {
  const auto held = shared_from_this();
  const During painting(isPainting_);
  raise([](UserControl& control) { control.prepareToShow(); });
  raise([this](UserControl& control) { paintControl(*widget_, control); });
}

void WidgetPlace::pressed(MouseState button, MouseState shift, PixelPoint point) {
  const auto held = shared_from_this();
  endKeyPointer();
  endLostForNewPress();
  mouse_.pressed(button);
  // A pointer that has rested where the mouse was lost comes back without a move of its own.
  if (std::exchange(isMoveOwed_, false)) {
    raise([&](UserControl& control) { control.mouseMove(0, shift, point); });
  }
  raise([&](UserControl& control) { control.mouseDown(button, shift, point); });
}

void WidgetPlace::moved(MouseState buttons, MouseState shift, PixelPoint point) {
  const auto held = shared_from_this();
  if (buttons == 0) captureLost();
  tellLost();
  isMoveOwed_ = false;
  raise([&](UserControl& control) { control.mouseMove(buttons, shift, point); });
}

void WidgetPlace::released(MouseState button, MouseState shift, PixelPoint point) {
  mouse_.released(button);
  lostButtons_ = static_cast<MouseState>(lostButtons_ & ~button);
  raise([&](UserControl& control) { control.mouseUp(button, shift, point); });
}

void WidgetPlace::tick(int timerId) {
  const auto held = shared_from_this();
  if (mouse_.isTaken(*widget_)) captureLost();
  tellLost();
  const UnderWay counted(*this);
  timers_.tick(timerId);
}

void WidgetPlace::pressKey() {
  const auto held = shared_from_this();
  endLostForNewPress();
  if (isPressHeld()) return;
  keyPress_.begin(middle(), [this](const auto& event) { raise(event); });
}

void WidgetPlace::releaseKey() {
  if (!isKeyLost_) endKeyPress(middle());
}

void WidgetPlace::endKeyPress(PixelPoint point) {
  const auto held = shared_from_this();
  keyPress_.end(point, [this](const auto& event) { raise(event); });
}

void WidgetPlace::captureLost() {
  if (!isCaptured_) return;
  isCaptured_ = false;
  if (userControl_ != nullptr) userControl_->captureLost();
  lostButtons_ = static_cast<MouseState>(lostButtons_ | mouse_.takeAll());
  tellLostLater();
}

void WidgetPlace::keyLost() {
  if (!keyPress_.isHeld()) return;
  isKeyLost_ = true;
  tellLostLater();
}

void WidgetPlace::inputLost() {
  captureLost();
  keyLost();
}

// Not at once: a window that is being destroyed hides its widgets, and its host is to hear nothing then.
void WidgetPlace::tellLostLater() {
  isLostToldBehind_ = eventsUnderWay_ > 0;
  if (isLostToldBehind_) return;
  QMetaObject::invokeMethod(
      widget_, [this] { tellLost(); }, Qt::QueuedConnection);
}

void WidgetPlace::tellLost() {
  isLostToldBehind_ = eventsUnderWay_ > 0;
  if (isLostToldBehind_) return;
  const auto held = shared_from_this();
  const MouseState lost = std::exchange(lostButtons_, MouseState{0});
  if (lost != 0) isMoveOwed_ = true;
  const During outside(isReleasedOutside_);
  for (const MouseState button : kButtons) {
    if ((lost & button) != 0) raise([=](UserControl& control) { control.mouseUp(button, 0, kOutside); });
  }
  if (std::exchange(isKeyLost_, false)) endKeyPress(kOutside);
}

// One that comes within an event takes the place of what has been lost there: it has a release of its own.
void WidgetPlace::endLostForNewPress() {
  tellLost();
  forgetLost();
}

void WidgetPlace::forgetLost() {
  lostButtons_ = 0;
  isKeyLost_ = false;
}

platform::WindowHandle WidgetPlace::hWnd() {
  return static_cast<platform::WindowHandle>(widget_->effectiveWinId());
}

PixelPoint WidgetPlace::GetCursorPos() {
  const auto pressed = isReleasedOutside_ ? kOutside : keyPress_.pointer();
  return toPoint(pressed ? widget_->mapToGlobal(toQPoint(*pressed)) : pointer.position(*widget_));
}

PixelPoint WidgetPlace::ScreenToClient(PixelPoint point) {
  return toPoint(widget_->mapFromGlobal(toQPoint(point)));
}

void WidgetPlace::setTimer(Timer& timer, Long milliseconds) {
  if (milliseconds > 0) {
    timers_.start(timer, milliseconds);
  } else {
    timers_.stop(timer);
  }
}

void WidgetPlace::setCursor(std::int16_t pointerNumber, const MouseIcon& icon) {
  if (pointerNumber == 0) {
    widget_->unsetCursor();
  } else {
    widget_->setCursor(cursorOf(pointerNumber, icon));
  }
}

void WidgetPlace::setToolTip(std::u16string_view text) { widget_->setToolTip(toolTipOf(toQString(text))); }

void WidgetPlace::PropertyChanged(std::u16string_view name) {
  const auto held = shared_from_this();
  widget_->propertyChanged(name);
}

void WidgetPlace::onError(const RuntimeError& error) noexcept try {
  const auto handler = errorHandler;
  if (handler) {
    handler(error);
  } else {
    showErrorLater(*widget_, error);
  }
} catch (const RuntimeError&) {
  return;
} catch (const std::bad_alloc&) {
  return;
}

OLE_COLOR WidgetPlace::systemColour(Long number) { return qt::systemColour(widget_->palette(), number); }
Screen& WidgetPlace::screen() { return applicationScreen(); }

}  // namespace tessaly::qt
