#include "tests/hosts/qt/Stage.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCursor>
#include <QTest>
#include <QWindow>
#include <algorithm>

namespace tessaly::tests {
namespace {

constexpr QRect kWindow(120, 90, 320, 240);
constexpr QPoint kCorner(100, 80);
constexpr QPoint kFarAway(5, 5);
constexpr OLE_COLOR kGrey = 0xC0C0C0;

}  // namespace

std::vector<int> timersOf(QObject& object) {
  std::vector<int> intervals;
  for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(&object)) {
    intervals.push_back(timer.interval);
  }
  std::sort(intervals.begin(), intervals.end());
  return intervals;
}

void tick(QObject& object, int interval) {
  for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(&object)) {
    if (timer.interval != interval) continue;
    QTimerEvent event(timer.timerId);
    QCoreApplication::sendEvent(&object, &event);
    return;
  }
  ADD_FAILURE() << "No timer of " << interval << " ms runs.";
}

void settle() { QCoreApplication::processEvents(QEventLoop::X11ExcludeTimers); }

QImage seenOn(QWidget& widget) { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

Stage::Stage() : window_(std::make_unique<QWidget>()) {
  QCursor::setPos(kFarAway);
  window_->setGeometry(kWindow);
}

// What is held is released where nobody hears of it.
Stage::~Stage() {
  window_.reset();
  releaseElsewhere();
  QCursor::setPos(kFarAway);
  settle();
}

void Stage::releaseElsewhere() {
  QWindow elsewhere;
  elsewhere.setGeometry(kWindow);
  while (!held_.empty()) {
    QTest::mouseRelease(&elsewhere, held_.back());
    held_.pop_back();
  }
}

void Stage::show(QWidget& widget, QSize size) {
  widget.setParent(window_.get());
  corner_ = kCorner;
  widget.setGeometry({kCorner, size});
  widget.show();
  window_->show();
  settle();
}

// The platform moves the cursor and tells the window under it.
void Stage::move(QPoint pointOfWidget) {
  QCursor::setPos(window_->mapToGlobal(corner_ + pointOfWidget));
  settle();
}

void Stage::press(Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  held_.push_back(button);
  QTest::mousePress(window_->windowHandle(), button, modifiers, pointerOnWindow());
}

void Stage::release(Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  std::erase(held_, button);
  QTest::mouseRelease(window_->windowHandle(), button, modifiers, pointerOnWindow());
}

void Stage::doubleClick() {
  QTest::mouseDClick(window_->windowHandle(), Qt::LeftButton, {}, pointerOnWindow());
}

QPoint Stage::pointerOnWindow() const { return window_->mapFromGlobal(QCursor::pos()); }

ButtonOnStage::ButtonOnStage() : button_(new qt::PictureButton(&stage_.window())) {
  button().backcolor(kGrey);
  button().withBorder(1);
  button().setErrorHandler([this](const RuntimeError& error) { errors_.push_back(error.number()); });
  QObject::connect(&button(), &qt::PictureButton::OnButtonClick, [this] { note("OnButtonClick"); });
  QObject::connect(&button(), &qt::PictureButton::OnButtonSelected, [this] { note("OnButtonSelected"); });
  QObject::connect(&button(), &qt::PictureButton::OnButtonSelectedTiming,
                   [this] { note("OnButtonSelectedTiming"); });
  stage_.show(button(), {48, 40});
}

void ButtonOnStage::listenToTheMouse() {
  const auto noted = [this](const std::string& name) {
    return
        [this, name](const std::int16_t* state, const std::int16_t* shift, const float* x, const float* y) {
          note(name + ' ' + std::to_string(*state) + ' ' + std::to_string(*shift) + ' ' +
               std::to_string(static_cast<int>(*x)) + ',' + std::to_string(static_cast<int>(*y)));
        };
  };
  QObject::connect(&button(), &qt::PictureButton::MouseMove, noted("MouseMove"));
  QObject::connect(&button(), &qt::PictureButton::MouseDown, noted("MouseDown"));
  QObject::connect(&button(), &qt::PictureButton::MouseUp, noted("MouseUp"));
}

std::string ButtonOnStage::border() const {
  const auto grey = qRed(seenOn(button()).pixel(button().width() / 2, 0));
  if (grey == 0xC0) return "hidden";
  return grey > 0xC0 ? "raised" : "sunken";
}

}  // namespace tessaly::tests
