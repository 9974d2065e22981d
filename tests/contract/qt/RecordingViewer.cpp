#include <QApplication>
#include <QMainWindow>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QWindow>
#include <stdexcept>

#include "tessaly/hosts/qt/Dialogs.h"
#include "tessaly/hosts/qt/Text.h"
#include "tessaly/platform/Ansi.h"
#include "tests/contract/HelpWorld.h"

namespace tessaly::tests {
namespace {

namespace command_of = platform::help_command;

QMainWindow& viewersWindow() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    auto* const window = qobject_cast<QMainWindow*>(widget);
    if (window != nullptr && window->objectName() == QStringLiteral("tessaly-help")) return *window;
  }
  throw std::runtime_error("the viewer has no window");
}

/// What a page that tells of a missing file has under a name, without the mark that there is more of it.
std::optional<QString> valueOn(const QTextBrowser& page, const QString& name) {
  const QRegularExpression row(QStringLiteral("^%1\\n(.*)$").arg(name), QRegularExpression::MultilineOption);
  const auto found = row.match(page.toPlainText());
  return found.hasMatch() ? std::optional(found.captured(1).remove(QChar(0x2026))) : std::nullopt;
}

/// Where the user's keys go to tells what was asked for.
Long commandOf(const QMainWindow& window) {
  const QString name = window.focusWidget() != nullptr ? window.focusWidget()->accessibleName() : QString();
  if (name == QStringLiteral("Contents")) return command_of::kDisplayContents;
  return name.contains(QStringLiteral("index")) ? command_of::kDisplayIndex : command_of::kDisplayTopic;
}

platform::WindowHandle ownerOf(const QMainWindow& window) {
  const QWindow* const owner = window.windowHandle()->transientParent();
  return owner != nullptr ? static_cast<platform::WindowHandle>(owner->winId()) : 0;
}

/// The viewer of Qt's, before files that are not there: it tells the user what was looked for.
class ViewerOnScreen final : public RecordingViewer {
 public:
  platform::WindowHandle window() override { return static_cast<platform::WindowHandle>(host_.winId()); }

  bool isOnTop() override { return viewersWindow().windowFlags().testFlag(Qt::WindowStaysOnTopHint); }

  bool answer(platform::WindowHandle /*viewer*/) override { return false; }

  std::vector<HelpCall> shown() override {
    const QMainWindow& window = viewersWindow();
    if (!window.isVisible()) return {{0, "0", command_of::kCloseAll, 0}};
    const auto& page = *window.findChild<QTextBrowser*>();
    const QString file = valueOn(page, QStringLiteral("Help file:")).value_or(QString());
    const auto number = valueOn(page, QStringLiteral("Page number:"));
    if (number) return {{ownerOf(window), ansi(file), command_of::kShowMapNumber, number->toInt()}};
    const auto topic = valueOn(page, QStringLiteral("Page:"));
    const QString text = topic ? file + QStringLiteral("::/") + *topic : file;
    return {{ownerOf(window), ansi(text), commandOf(window), 0}};
  }

 private:
  static std::string ansi(const QString& text) { return platform::toAnsi(qt::fromQString(text)); }

  qt::Dialogs dialogs_;
  QWidget host_;
};

}  // namespace

std::vector<Body> RecordingViewer::bodies() { return {Body::Toolkit}; }

std::unique_ptr<RecordingViewer> RecordingViewer::make() { return std::make_unique<ViewerOnScreen>(); }

}  // namespace tessaly::tests
