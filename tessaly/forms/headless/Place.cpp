#include "tessaly/forms/headless/Place.h"

#include "tessaly/forms/Guarded.h"
#include "tessaly/forms/NoContainer.h"
#include "tessaly/forms/headless/Clock.h"
#include "tessaly/forms/headless/Form.h"
#include "tessaly/forms/headless/Points.h"
#include "tessaly/forms/headless/SystemColours.h"

namespace tessaly::headless {
namespace {

PixelSize checked(PixelSize size) {
  constexpr Scale pixels(Scale::kPixels);
  return {pixels.toSize(size.width), pixels.toSize(size.height)};
}

}  // namespace

Place::Place(Form& form, PixelPoint corner, PixelSize size, Long number)
    : form_(&form), errors_(form.errors_), corner_(corner), size_(checked(size)), number_(number) {}

// The control still has its place while it goes.
Place::~Place() {
  control_.reset();
  if (userControl_ != nullptr) userControl_->leave();
}

void Place::drag(PixelSize size) {
  if (checked(size) == size_) return;
  size_ = size;
  raise([](UserControl& control) { control.resized(); });
}

void Place::show(bool visible) {
  isVisible_ = visible;
  if (visible || !hasCapture()) return;
  form_->captured_ = nullptr;
  userControl().captureLost();
}

PictureReference Place::picture() {
  const auto held = weak_from_this().lock();
  raise([](UserControl& control) { control.prepareToShow(); });
  return userControl().picture();
}

PropertyBag Place::save() {
  const auto held = weak_from_this().lock();
  PropertyBag bag;
  userControl().save(bag);
  return bag;
}

bool Place::hasCapture() const { return form_ != nullptr && form_->captured_ == this; }

UserControl& Place::userControl() const {
  if (userControl_ == nullptr) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
  return *userControl_;
}

void Place::setSize(PixelSize size) {
  if (checked(size) == size_) return;
  const auto held = weak_from_this().lock();
  size_ = size;
  userControl().resized();
}

PixelPoint Place::GetCursorPos() {
  return form_ != nullptr ? form_->pointerOnScreen_ : noContainer().GetCursorPos();
}

PixelPoint Place::ScreenToClient(PixelPoint point) {
  return form_ != nullptr ? difference(difference(point, form_->corner_), corner_) : point;
}

void Place::setCapture(bool captured) {
  if (form_ == nullptr || captured == hasCapture()) return;
  form_->captured_ = captured ? this : nullptr;
}

void Place::setTimer(Timer& timer, Long milliseconds) {
  if (form_ == nullptr) return;
  if (milliseconds > 0) {
    form_->clock_->start(timer, *this, milliseconds);
  } else {
    form_->clock_->stop(timer);
  }
}

void Place::setCursor(std::int16_t pointer, const MouseIcon& icon) {
  cursor_ = pointer;
  mouseIcon_ = icon;
}

bool Place::UserMode() { return form_ == nullptr || form_->userMode_; }

void Place::onError(const RuntimeError& error) noexcept {
  try {
    errors_->push_back(error);
  } catch (const std::bad_alloc&) {
    // There is no room to tell of it.
    return;
  }
}

OLE_COLOR Place::systemColour(Long number) { return headless::systemColour(number); }

Screen& Place::screen() { return form_ != nullptr ? form_->screen() : *screenOfForm_; }

Toolbox& Place::toolbox() { return form_ != nullptr ? *form_->toolbox_ : noContainer().toolbox(); }

bool Place::contains(PixelPoint pointOfForm) const {
  const PixelPoint inside = difference(pointOfForm, corner_);
  return inside.x >= 0 && inside.x < size_.width && inside.y >= 0 && inside.y < size_.height;
}

void Place::leaveForm() {
  if (form_ == nullptr) return;
  setCapture(false);
  form_->clock_->stopAll(*this);
  screenOfForm_ = form_->screen_;
  form_ = nullptr;
}

void Place::raise(const std::function<void(UserControl&)>& event) {
  const auto held = weak_from_this().lock();
  guarded(userControl(), [&] { event(userControl()); });
}

}  // namespace tessaly::headless
