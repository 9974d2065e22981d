#include "tessaly/hosts/qt/WidgetContainer.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

#include "tessaly/hosts/qt/Mouse.h"
#include "tessaly/hosts/qt/Painting.h"
#include "tessaly/hosts/qt/Text.h"
#include "tessaly/hosts/qt/WidgetPlace.h"

namespace tessaly::qt {
namespace {

constexpr Long kLongestSide = 32767;

PixelPoint pointOf(const QMouseEvent& event) { return toPoint(pixelAt(event.position())); }

bool isPressKey(const QKeyEvent& event) {
  const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return isPlain &&
         (event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter);
}

}  // namespace

WidgetContainer::WidgetContainer(QWidget* parent)
    : QWidget(parent), place_(std::make_shared<WidgetPlace>(*this)) {
  setMouseTracking(true);
}

WidgetContainer::~WidgetContainer() { place_->leave(); }

PropertyBag WidgetContainer::save() const {
  const auto held = place_;
  PropertyBag bag;
  held->userControl().save(bag);
  return bag;
}

bool WidgetContainer::UserMode() const { return place_->runs; }
void WidgetContainer::setUserMode(bool runs) { place_->runs = runs; }
void WidgetContainer::setErrorHandler(ErrorHandler handler) { place_->errorHandler = std::move(handler); }
bool WidgetContainer::isPointerAsked() const { return place_->pointer.isAsked(); }
void WidgetContainer::setPointerAsked(bool asked) { place_->pointer.setAsked(asked); }

void WidgetContainer::press() {
  const auto held = place_;
  held->pressKey();
  held->releaseKey();
}

bool WidgetContainer::isPressHeld() const { return place_->isPressHeld(); }

QSize WidgetContainer::sizeHint() const { return sizeOfLabels(place_->userControl()); }

Container& WidgetContainer::container() const { return *place_; }

void WidgetContainer::begin(const std::shared_ptr<void>& control, const PropertyBag* bag) {
  place_->hold(control);
  if (bag != nullptr) {
    place_->userControl().restore(*bag);
  } else {
    place_->userControl().create();
  }
}

void WidgetContainer::guard(const std::function<void()>& call) noexcept {
  place_->raise([&](UserControl&) { call(); });
}

void WidgetContainer::propertyChanged(std::u16string_view name) { emit PropertyChanged(toQString(name)); }

// A dialog that opens takes mouse and keyboard away, and nobody tells of the release.
bool WidgetContainer::event(QEvent* event) {
  if (event->type() == QEvent::WindowBlocked) place_->inputLost();
  return QWidget::event(event);
}

void WidgetContainer::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange && !isEnabled()) place_->inputLost();
  QWidget::changeEvent(event);
}

void WidgetContainer::hideEvent(QHideEvent*) { place_->inputLost(); }
void WidgetContainer::enterEvent(QEnterEvent* event) { place_->pointer.seen(event->globalPosition()); }
void WidgetContainer::leaveEvent(QEvent*) { place_->pointer.left(); }

// From here on nothing looks at the widget any more once the control had an event: it may be gone.
void WidgetContainer::mousePressEvent(QMouseEvent* event) {
  const MouseState button = mouseState(event->button());
  if (button == 0) return event->ignore();
  place_->pointer.seen(event->globalPosition());
  place_->pressed(button, shiftState(event->modifiers()), pointOf(*event));
}

// To a control the second press of a double click is a press.
void WidgetContainer::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void WidgetContainer::mouseMoveEvent(QMouseEvent* event) {
  place_->pointer.seen(event->globalPosition());
  place_->moved(mouseState(event->buttons()), shiftState(event->modifiers()), pointOf(*event));
}

void WidgetContainer::mouseReleaseEvent(QMouseEvent* event) {
  const MouseState button = mouseState(event->button());
  if (button == 0) return event->ignore();
  place_->pointer.seen(event->globalPosition());
  place_->released(button, shiftState(event->modifiers()), pointOf(*event));
}

void WidgetContainer::keyPressEvent(QKeyEvent* event) {
  if (!isPressKey(*event)) return QWidget::keyPressEvent(event);
  if (event->isAutoRepeat()) return;
  if (event->key() == Qt::Key_Space) {
    place_->pressKey();
  } else {
    press();
  }
}

void WidgetContainer::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space) return QWidget::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) place_->releaseKey();
}

void WidgetContainer::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  place_->endKeyPointer();
  place_->keyLost();
}

void WidgetContainer::paintEvent(QPaintEvent*) { place_->paint(); }

void WidgetContainer::resizeEvent(QResizeEvent*) {
  place_->widgetResized({std::min(width(), kLongestSide), std::min(height(), kLongestSide)});
}

void WidgetContainer::timerEvent(QTimerEvent* event) { place_->tick(event->timerId()); }

}  // namespace tessaly::qt
