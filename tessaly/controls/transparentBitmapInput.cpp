// What the mouse and the timers do: hover, press and click. All of this changes only fields, timers and the
// border.

#include <new>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/controls/transparentBitmapChildren.h"
#include "tessaly/forms/Container.h"

namespace tessaly {
namespace {

constexpr Long kPollMilliseconds = 50;

/// Calls what the host wants to hear of. A copy, since the host may let go of the control or set the field
/// anew.
template <class Event, class... Arguments>
void raise(const Event& event, Arguments&... arguments) {
  const Event copy = event;
  if (copy) copy(arguments...);
}

void restart(Timer& timer, Long milliseconds) {
  timer.Enabled(False);
  timer.Interval(milliseconds);
  timer.Enabled(True);
}

/// A step whose failure is nothing to stop for.
template <class Step>
void skipFailure(const Step& step) {
  try {
    step();
  } catch (const RuntimeError&) {
    return;
  } catch (const std::bad_alloc&) {
    return;
  }
}

}  // namespace

void transparentBitmap::MouseMove(MouseState button, MouseState shift, float x, float y) {
  raise(events.MouseMove, button, shift, x, y);
  if (!isEnabled_ || withBorder_ <= 0) return;
  if (isHovered_) {
    if (!selectedRaised_) restart(*children_->Timer2, selectedDelay_);
    return;
  }
  isHovered_ = True;
  if (isPressed_) return;
  showBorder(True, True);
  children_->Timer1->Interval(kPollMilliseconds);
  children_->Timer1->Enabled(True);
  raise(events.OnButtonSelected);
  selectedRaised_ = False;
  restart(*children_->Timer2, selectedDelay_);
}

void transparentBitmap::MouseDown(MouseState button, MouseState shift, float x, float y) {
  raise(events.MouseDown, button, shift, x, y);
  if (isPressed_ || !isEnabled_ || button != kLeftButton || shift != 0) return;
  if (withBorder_ > 0) showBorder(True, False);
  isPressed_ = True;
  if (automaticClick_ && isEnabled_) {
    raise(events.OnButtonClick);
    children_->timerAutoClick->Interval(automaticClickFirstTiming_);
    children_->timerAutoClick->Enabled(True);
  }
}

void transparentBitmap::MouseUp(MouseState button, MouseState shift, float x, float y) {
  raise(events.MouseUp, button, shift, x, y);
  if (!isPressed_ || !isEnabled_) return;
  if (isHovered_) isMouseInside(isHovered_);
  if (withBorder_ > 0) showBorder(isHovered_, isHovered_);
  isPressed_ = False;
  if (automaticClick_) {
    children_->timerAutoClick->Enabled(False);
    return;
  }
  if (isHovered_ && isEnabled_) raise(events.OnButtonClick);
}

/// Whether the pointer has left is asked again and again, since nothing tells it.
void transparentBitmap::Timer1Tick() {
  if (!isEnabled_ || withBorder_ <= 0 || !isHovered_) return;
  skipFailure([this] { isMouseInside(isHovered_); });
  if (isHovered_) return;
  skipFailure([this] { children_->Timer2->Enabled(False); });
  if (!isPressed_) skipFailure([this] { showBorder(False, False); });
  skipFailure([this] { children_->Timer1->Enabled(False); });
}

void transparentBitmap::Timer2Tick() {
  bool isVisible = false;
  skipFailure([&] { isVisible = children_->userControl->container().isVisible(); });
  if (!isVisible) return;
  skipFailure([this] { children_->Timer2->Enabled(False); });
  selectedRaised_ = True;
  skipFailure([this] { raise(events.OnButtonSelectedTiming); });
}

void transparentBitmap::timerAutoClickTick() {
  if (!isEnabled_) {
    children_->timerAutoClick->Enabled(False);
    return;
  }
  if (!automaticClick_) return;
  raise(events.OnButtonClick);
  restart(*children_->timerAutoClick, automaticClickTiming_);
}

}  // namespace tessaly
