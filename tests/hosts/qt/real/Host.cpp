// A host with one picture button in a window, for tests with a real pointer: it writes a line for each event,
// and its arguments tell what it does in a click. A line that it reads is written back when all events before
// are over; it ends with its input.

#include <unistd.h>

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QSocketNotifier>
#include <QStyleFactory>
#include <array>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "tests/hosts/qt/real/Places.h"
#include "tests/hosts/qt/real/Watcher.h"

namespace tessaly::tests {
namespace {

using qt::PictureButton;

/// Nobody waits for longer than this, in seconds.
constexpr unsigned kLongestLife = 30;

void tell(const std::string& line) { std::puts(line.c_str()); }

QRect rectangle(ScreenPoint corner, ScreenPoint size) { return {corner.x, corner.y, size.x, size.y}; }

class Dialog final : public QDialog {
 public:
  using QDialog::QDialog;

 protected:
  void showEvent(QShowEvent* event) override {
    QDialog::showEvent(event);
    tell("dialog open");
  }
};

void showDialog(QWidget* parent) {
  Dialog dialog(parent);
  dialog.setGeometry(rectangle(kDialogCorner, kDialogSize));
  QPushButton close(&dialog);
  close.resize(dialog.size());
  QObject::connect(&close, &QPushButton::pressed, &dialog, &QDialog::accept);
  dialog.exec();
  tell("dialog closed");
}

class Host {
 public:
  Host()
      : window_(new QWidget),
        button_(new PictureButton(window_)),
        watcher_(*button_),
        input_(0, QSocketNotifier::Read) {
    window_->setGeometry(rectangle(kWindowCorner, kWindowSize));
    const QPoint corner(kButtonCorner.x - kWindowCorner.x, kButtonCorner.y - kWindowCorner.y);
    button_->setGeometry({corner, QSize(kButtonSize.x, kButtonSize.y)});
    button_->setErrorHandler(
        [](const RuntimeError& error) { tell("error " + std::to_string(error.number())); });
    tellEvents();
    tellMouse("MouseDown", &PictureButton::MouseDown);
    tellMouse("MouseMove", &PictureButton::MouseMove);
    tellMouse("MouseUp", &PictureButton::MouseUp);
    QObject::connect(button_, &QObject::destroyed, [] { tell("gone"); });
    QObject::connect(&input_, &QSocketNotifier::activated, [] { answer(); });
  }
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host() { delete window_; }

  void show() {
    window_->show();
    window_->activateWindow();
  }

  void prepare(const std::string& word) { ways_.at(word)(); }

 private:
  void tellEvents() {
    QObject::connect(button_, &PictureButton::OnButtonClick, [] { tell("OnButtonClick"); });
    QObject::connect(button_, &PictureButton::OnButtonSelected, [] { tell("OnButtonSelected"); });
    QObject::connect(button_, &PictureButton::OnButtonSelectedTiming, [] { tell("OnButtonSelectedTiming"); });
  }

  template <class Signal>
  void tellMouse(const std::string& name, Signal signal) {
    QObject::connect(button_, signal,
                     [name](const std::int16_t*, const std::int16_t*, const float* x, const float* y) {
                       tell(name + ' ' + std::to_string(static_cast<int>(*x)) + ',' +
                            std::to_string(static_cast<int>(*y)));
                     });
  }

  void inClick(const std::function<void()>& action) {
    QObject::connect(button_, &PictureButton::OnButtonClick, action);
  }

  void clickAutomatically() {
    button_->automaticClick(true);
    button_->automaticClickFirstTiming(60);
    button_->automaticClickTiming(20);
  }

  void takeTheKeyboard() {
    button_->setFocusPolicy(Qt::TabFocus);
    button_->setFocus();
  }

  void letGoOfTheWindow() {
    button_ = nullptr;
    delete std::exchange(window_, nullptr);
  }

  static void answer() {
    std::array<char, 256> bytes{};
    const ssize_t count = read(0, bytes.data(), bytes.size());
    if (count <= 0) return QApplication::exit();
    std::fwrite(bytes.data(), 1, static_cast<std::size_t>(count), stdout);
  }

  QWidget* window_;
  PictureButton* button_;
  Watcher watcher_;
  QSocketNotifier input_;
  const std::map<std::string, std::function<void()>> ways_{
      {"clicks-automatically", [this] { clickAutomatically(); }},
      {"has-the-keyboard", [this] { takeTheKeyboard(); }},
      {"shows-a-dialog", [this] { inClick([this] { showDialog(window_); }); }},
      {"disables", [this] { inClick([this] { button_->enabled(false); }); }},
      {"deletes", [this] { inClick([this] { delete std::exchange(button_, nullptr); }); }},
      {"deletes-the-window", [this] { inClick([this] { letGoOfTheWindow(); }); }},
      {"raises", [this] { inClick([] { throw RuntimeError(RuntimeError::TypeMismatch); }); }}};
};

}  // namespace
}  // namespace tessaly::tests

int main(int argc, char** argv) {
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  alarm(tessaly::tests::kLongestLife);
  QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setQuitOnLastWindowClosed(false);
  tessaly::tests::Host host;
  for (int word = 1; word < argc; ++word) host.prepare(argv[word]);
  host.show();
  return QApplication::exec();
}
