// A picture button in a widget beside Qt's own tool button with the same picture as its icon, both in a
// window that is shown, without a display. Both get the same events, and what they are to paint is painted.
// The pictures are made beforehand. Qt's button looks for itself whether the pointer has left; the picture
// button gets the tick of its poll that finds it gone.

#include <benchmark/benchmark.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QToolButton>
#include <functional>
#include <memory>
#include <vector>

#include "bench/ButtonScene.h"
#include "bench/CopyScenes.h"
#include "bench/QtButtons.h"
#include "bench/peers/QtApplication.h"
#include "tessaly/hosts/qt/PictureButton.h"

namespace tessaly::bench {
namespace {

constexpr int kButtons = 200;
constexpr int kColumns = 20;
constexpr int kPitch = 60;
constexpr int kPollInterval = 50;
constexpr QSize kSize(50, 50);
constexpr QPoint kPlace(100, 80);
constexpr QPoint kOnButton(20, 24);
constexpr QPoint kBesideIt(-30, -20);
constexpr QPoint kFarAway(5, 5);

/// The picture with another shade, so that no two buttons share one.
QPixmap pictureOf(const SquarePicture& square, int shade) {
  QImage image(square.side, square.side, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < square.side; ++y) {
    for (int x = 0; x < square.side; ++x) {
      const std::uint32_t pixel = square.pixels[static_cast<std::size_t>(y * square.side + x)];
      image.setPixel(x, y, pixel == kKey ? 0 : (0xFF000000U | pixel) + static_cast<std::uint32_t>(shade));
    }
  }
  return QPixmap::fromImage(image);
}

QWidget* makePictureButton(const QPixmap& picture, QWidget* parent) {
  auto* const button = new qt::PictureButton(parent);
  button->withBorder(1);
  button->Picture(picture);
  return button;
}

QWidget* makeToolButton(const QPixmap& picture, QWidget* parent) {
  auto* const button = new QToolButton(parent);
  button->setAutoRaise(true);
  button->setIconSize(picture.size());
  button->setIcon(picture);
  return button;
}

struct Contestant {
  std::string name;
  QWidget* (*make)(const QPixmap& picture, QWidget* parent);
};

const std::vector<Contestant>& contestants() {
  static const std::vector<Contestant> all{{kPictureButton, makePictureButton},
                                           {kToolButton, makeToolButton}};
  return all;
}

/// One button in a window, with the pointer on it.
class Seat {
 public:
  explicit Seat(const Contestant& contestant)
      : button_(contestant.make(pictureOf(buttonScene().main, 0), &window_)) {
    QCursor::setPos(kFarAway);
    window_.setGeometry(50, 50, 400, 300);
    button_->setGeometry({kPlace, kSize});
    window_.show();
    // A window is told of the pointer only when it has been seen.
    QCoreApplication::processEvents();
    pointAt(kBesideIt);
    pointAt(kOnButton);
  }

  void pointAt(QPoint point) {
    QCursor::setPos(window_.mapToGlobal(kPlace + point));
    QCoreApplication::processEvents();
  }

  void send(QEvent::Type type, QPoint point, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent event(type, point, button_->mapToGlobal(point), button, held, {});
    QCoreApplication::sendEvent(button_, &event);
  }

  void move(QPoint point) { send(QEvent::MouseMove, point, Qt::NoButton, {}); }

  void click() {
    send(QEvent::MouseButtonPress, kOnButton, Qt::LeftButton, Qt::LeftButton);
    QCoreApplication::processEvents();
    send(QEvent::MouseButtonRelease, kOnButton, Qt::LeftButton, {});
    QCoreApplication::processEvents();
  }

  /// The time of the poll has come, where there is one.
  void poll() {
    for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(button_)) {
      if (timer.interval != kPollInterval) continue;
      QTimerEvent event(timer.timerId);
      QCoreApplication::sendEvent(button_, &event);
    }
    QCoreApplication::processEvents();
  }

  QImage look() { return button_->grab().toImage(); }

 private:
  QWidget window_;
  QWidget* button_;
};

void move(benchmark::State& state, const Contestant& contestant) {
  const QtApplication application;
  Seat seat(contestant);
  int step = 0;
  for (auto _ : state) {
    ++step;
    seat.move(kOnButton + QPoint(step % 16, step % 8));
  }
}

void click(benchmark::State& state, const Contestant& contestant) {
  const QtApplication application;
  Seat seat(contestant);
  for (auto _ : state) seat.click();
}

void visit(benchmark::State& state, const Contestant& contestant) {
  const QtApplication application;
  Seat seat(contestant);
  const QImage there = seat.look();
  seat.pointAt(kBesideIt);
  seat.poll();
  if (seat.look() == there) state.SkipWithError("nothing is seen of the pointer");
  for (auto _ : state) {
    seat.pointAt(kOnButton);
    seat.pointAt(kBesideIt);
    seat.poll();
  }
}

QPoint placeOf(int number) { return {number % kColumns * kPitch, number / kColumns * kPitch}; }

std::unique_ptr<QWidget> shownWindow(const Contestant& contestant, const std::vector<QPixmap>& pictures) {
  auto window = std::make_unique<QWidget>();
  window->resize(kColumns * kPitch, kButtons / kColumns * kPitch);
  for (int number = 0; number < kButtons; ++number) {
    QWidget* const button = contestant.make(pictures[static_cast<std::size_t>(number)], window.get());
    button->setGeometry({placeOf(number), kSize});
  }
  window->show();
  QCoreApplication::processEvents();
  return window;
}

bool isPainted(QWidget& window, const std::vector<QPixmap>& pictures) {
  const QImage seen = window.grab().toImage();
  for (int number = 0; number < kButtons; ++number) {
    const QPoint middle = placeOf(number) + QPoint(25, 25);
    const QRgb wanted = pictures[static_cast<std::size_t>(number)].toImage().pixel(24, 24);
    if ((seen.pixel(middle) & RGB_MASK) != (wanted & RGB_MASK)) return false;
  }
  return true;
}

void create(benchmark::State& state, const Contestant& contestant) {
  const QtApplication application;
  std::vector<QPixmap> pictures;
  for (int number = 0; number < kButtons; ++number)
    pictures.push_back(pictureOf(buttonScene().main, number % 16));
  if (!isPainted(*shownWindow(contestant, pictures), pictures)) state.SkipWithError("a wrong picture");
  for (auto _ : state) {
    auto window = shownWindow(contestant, pictures);
    state.PauseTiming();
    window.reset();
    QCoreApplication::processEvents();
    state.ResumeTiming();
  }
}

bool addAll() {
  for (const Contestant& contestant : contestants()) {
    benchmark::RegisterBenchmark((kMove + '/' + contestant.name).c_str(), &move, contestant);
    benchmark::RegisterBenchmark((kClick + '/' + contestant.name).c_str(), &click, contestant);
    benchmark::RegisterBenchmark((kVisit + '/' + contestant.name).c_str(), &visit, contestant);
    benchmark::RegisterBenchmark((kCreation + '/' + contestant.name).c_str(), &create, contestant);
  }
  return true;
}
const bool added = addAll();

}  // namespace
}  // namespace tessaly::bench
