#include "tests/hosts/qt/real/Watcher.h"

#include <QAbstractEventDispatcher>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cstdio>
#include <utility>

#include "tessaly/forms/headless/Form.h"
#include "tessaly/hosts/qt/Pictures.h"
#include "tests/controls/Figures.h"
#include "tests/hosts/qt/real/Places.h"

namespace tessaly::tests {
namespace {

void dress(transparentBitmap& button) {
  button.backcolor(0x80C0F0);
  button.maskColor(kMagenta);
  button.Picture(ring({30, 22}, 90));
  button.disabledPicture(ring({30, 22}, 90));
  button.AddBitmap(ring({9, 9}, 200), 8, kMagenta);
  button.withBorder(2);
}

QImage comparable(const QImage& image) { return image.convertToFormat(QImage::Format_RGB32); }

std::string timersOf(QObject& object) {
  std::vector<int> intervals;
  for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(&object)) {
    intervals.push_back(timer.interval);
  }
  std::sort(intervals.begin(), intervals.end());
  std::string line = intervals.empty() ? "timers none" : "timers";
  for (const int interval : intervals) line += ' ' + std::to_string(interval);
  return line;
}

void tellChange(std::string& last, std::string now) {
  if (now == last) return;
  last = std::move(now);
  std::puts(last.c_str());
}

}  // namespace

Watcher::Watcher(qt::PictureButton& button) : button_(&button) {
  headless::Form form;
  auto& twin = form.add<transparentBitmap>({0, 0, kButtonSize.x, kButtonSize.y});
  dress(twin);
  dress(button.control());
  const auto keep = [&](const char* name) {
    looks_.push_back({name, comparable(qt::toImage(form.placeOf(twin).picture()))});
  };
  keep("shows idle");
  form.movePointer({10, 12});
  keep("shows raised");
  form.press();
  keep("shows sunken");
  button.installEventFilter(this);
}

// What an event makes of the button is seen when it is over, and what is painted when Qt has brought it to
// the screen.
bool Watcher::eventFilter(QObject*, QEvent*) {
  if (!std::exchange(isLookWaiting_, true)) QCoreApplication::postEvent(this, new QEvent(QEvent::User));
  return false;
}

void Watcher::customEvent(QEvent*) {
  isLookWaiting_ = false;
  if (!button_) return;
  tellChange(lastTimers_, timersOf(*button_));
  if (button_->window()->isVisible()) tellChange(lastShown_, shown());
}

std::string Watcher::shown() const {
  const QImage seen =
      comparable(QGuiApplication::primaryScreen()
                     ->grabWindow(0, kButtonCorner.x, kButtonCorner.y, kButtonSize.x, kButtonSize.y)
                     .toImage());
  const auto look =
      std::find_if(looks_.begin(), looks_.end(), [&](const Look& known) { return known.image == seen; });
  return look != looks_.end() ? look->name : "shows something else";
}

}  // namespace tessaly::tests
