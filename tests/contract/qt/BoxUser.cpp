#include "tests/contract/BoxUser.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <map>

#include "tessaly/hosts/qt/Dialogs.h"
#include "tessaly/hosts/qt/Text.h"

namespace tessaly::tests {
namespace {

platform::WindowHandle handleOf(const QWidget* window) {
  return window != nullptr ? static_cast<platform::WindowHandle>(window->winId()) : 0;
}

/// By what stands on the button, as the user tells them apart.
Long numberOf(const QPushButton* button) {
  static const std::map<QString, Long> numbers{
      {QStringLiteral("OK"), 1},       {QStringLiteral("Cancel"), 2}, {QStringLiteral("Abort"), 3},
      {QStringLiteral("Retry"), 4},    {QStringLiteral("Ignore"), 5}, {QStringLiteral("Yes"), 6},
      {QStringLiteral("No"), 7},       {QStringLiteral("Help"), 9},   {QStringLiteral("Try Again"), 10},
      {QStringLiteral("Continue"), 11}};
  const auto number = button != nullptr ? numbers.find(button->text().remove(u'&')) : numbers.end();
  return number != numbers.end() ? number->second : 0;
}

Long bitsOf(QMessageBox::Icon icon) {
  static const std::map<QMessageBox::Icon, Long> bits{{QMessageBox::Critical, 0x10},
                                                      {QMessageBox::Question, 0x20},
                                                      {QMessageBox::Warning, 0x30},
                                                      {QMessageBox::Information, 0x40}};
  const auto found = bits.find(icon);
  return found != bits.end() ? found->second : 0;
}

QPushButton* defaultOf(const QMessageBox& box) {
  const auto buttons = box.findChildren<QPushButton*>();
  const auto found =
      std::find_if(buttons.begin(), buttons.end(), [](const auto* each) { return each->isDefault(); });
  return found != buttons.end() ? *found : nullptr;
}

ShownBox lookAt(const QMessageBox& box) {
  const auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  ShownBox shown{handleOf(box.parentWidget()),       qt::fromQString(label->text()),
                 qt::fromQString(box.windowTitle()), {},
                 numberOf(defaultOf(box)),           bitsOf(box.icon())};
  // As they were made, since where each one stands is a matter of the desktop's style.
  for (const auto* const button : box.findChildren<QPushButton*>()) shown.buttons.push_back(numberOf(button));
  return shown;
}

/// Its timer runs in the box's own loop of events.
class UserOfToolkit final : public BoxUser {
 public:
  UserOfToolkit() {
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box != nullptr) answer(*box);
    });
    timer_.start(0);
  }

  void press(Long button) override { button_ = button; }
  const std::vector<ShownBox>& seen() const override { return seen_; }

  platform::WindowHandle activate() override {
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    return handleOf(&window_);
  }

 private:
  void answer(QMessageBox& box) {
    seen_.push_back(lookAt(box));
    if (button_ == 0) return QTest::keyClick(&box, Qt::Key_Return);
    for (auto* const button : box.findChildren<QPushButton*>()) {
      if (numberOf(button) == button_) return button->click();
    }
    ADD_FAILURE() << "There is no button " << button_;
    box.done(0);
  }

  qt::Dialogs dialogs_;
  QWidget window_;
  QTimer timer_;
  Long button_ = 0;
  std::vector<ShownBox> seen_;
};

}  // namespace

std::vector<Body> BoxUser::bodies() { return {Body::Toolkit}; }

std::unique_ptr<BoxUser> BoxUser::make() { return std::make_unique<UserOfToolkit>(); }

}  // namespace tessaly::tests
