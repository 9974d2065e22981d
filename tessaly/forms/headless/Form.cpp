#include "tessaly/forms/headless/Form.h"

#include <algorithm>
#include <utility>

#include "tessaly/forms/headless/Clock.h"
#include "tessaly/forms/headless/Points.h"

namespace tessaly::headless {

Form::Form() : clock_(std::make_shared<Clock>()), errors_(std::make_shared<std::vector<RuntimeError>>()) {}

// An event that runs holds its place, and with it the control, beyond the form's end.
Form::~Form() {
  while (!places_.empty()) removePlace(*places_.back());
}

void* Form::addControl(const Bounds& bounds, const Maker& maker, const Beginning& beginning) {
  const auto place = std::make_shared<Place>(*this, PixelPoint{bounds.left, bounds.top},
                                             PixelSize{bounds.width, bounds.height}, ++lastNumber_);
  places_.push_back(place);
  try {
    place->control_ = maker(*place);
    beginning(place->userControl());
    if (place->form_ == nullptr) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
  } catch (...) {
    if (place->form_ != nullptr) removePlace(*place);
    throw;
  }
  return place->control_.get();
}

Place& Form::findPlace(const void* control) const {
  const auto found = std::find_if(places_.begin(), places_.end(),
                                  [&](const auto& place) { return place->control_.get() == control; });
  if (found == places_.end()) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
  return **found;
}

void Form::removePlace(Place& place) {
  const auto held = place.shared_from_this();
  place.leaveForm();
  std::erase(places_, held);
}

void Form::advance(Long milliseconds) {
  if (milliseconds < 0) throw RuntimeError(RuntimeError::InvalidPropertyValue);
  const auto held = clock_;
  held->advance(milliseconds);
}

// From here on nothing looks at the form any more once an event was raised: it may have gone.
void Form::movePointer(PixelPoint point, MouseState shift) {
  pointerOnScreen_ = sum(corner_, point);
  if (Place* const place = target()) {
    place->raise([buttons = buttons_, shift, at = pointerOn(*place)](UserControl& control) {
      control.mouseMove(buttons, shift, at);
    });
  }
}

void Form::press(MouseState button, MouseState shift) {
  buttons_ = static_cast<MouseState>(buttons_ | button);
  if (Place* const place = target()) {
    place->raise([button, shift, at = pointerOn(*place)](UserControl& control) {
      control.mouseDown(button, shift, at);
    });
  }
}

void Form::release(MouseState button, MouseState shift) {
  buttons_ = static_cast<MouseState>(buttons_ & ~button);
  if (Place* const place = target()) {
    place->raise([button, shift, at = pointerOn(*place)](UserControl& control) {
      control.mouseUp(button, shift, at);
    });
  }
}

Place* Form::target() const {
  if (captured_ != nullptr) return captured_;
  const PixelPoint pointer = difference(pointerOnScreen_, corner_);
  const auto found = std::find_if(places_.rbegin(), places_.rend(), [&](const auto& place) {
    return place->isVisible_ && place->contains(pointer);
  });
  return found != places_.rend() ? found->get() : nullptr;
}

PixelPoint Form::pointerOn(const Place& place) const {
  return difference(difference(pointerOnScreen_, corner_), place.corner_);
}

}  // namespace tessaly::headless
