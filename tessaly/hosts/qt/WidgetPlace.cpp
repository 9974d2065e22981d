#include "tessaly/hosts/qt/WidgetPlace.h"

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
  presses_.forgetLost();
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
  presses_.pressed(button, shift, point);
}

void WidgetPlace::moved(MouseState buttons, MouseState shift, PixelPoint point) {
  const auto held = shared_from_this();
  presses_.moved(buttons, shift, point);
}

void WidgetPlace::released(MouseState button, MouseState shift, PixelPoint point) {
  const auto held = shared_from_this();
  presses_.released(button, shift, point);
}

void WidgetPlace::tick(int timerId) {
  const auto held = shared_from_this();
  presses_.beforeTick();
  const Presses::Event counted(presses_);
  timers_.tick(timerId);
}

void WidgetPlace::pressKey() {
  const auto held = shared_from_this();
  presses_.pressKey(middle());
}

void WidgetPlace::releaseKey() {
  const auto held = shared_from_this();
  presses_.releaseKey(middle());
}

platform::WindowHandle WidgetPlace::hWnd() {
  return static_cast<platform::WindowHandle>(widget_->effectiveWinId());
}

PixelPoint WidgetPlace::GetCursorPos() {
  const auto pressed = presses_.pointer();
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
