// A Qt host with help and message boxes: one object puts them into force. The help file here is that of the
// tests; a host has its own beside its program, and names a dialog's page.

#include <QAbstractButton>
#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QTextBrowser>
#include <QTimer>

#include "examples/support/Print.h"
#include "tessaly/hosts/qt/Dialogs.h"
#include "tessaly/hosts/qt/Text.h"
#include "tessaly/platform/Desktop.h"

using examples::printLine;
using tessaly::Long;
using tessaly::qt::fromQString;
namespace platform = tessaly::platform;

namespace {

constexpr const char* kPage = "tests/hosts/qt/help/guide.chm::/Settings.html#language";
constexpr const char* kMissing = "nowhere.chm::/Overview.html";

/// Yes or no, where No is what Return presses, with a question mark.
constexpr Long kQuestion = 0x124;

void showHelp(const char* page) {
  const auto window =
      platform::desktop().htmlHelp->HtmlHelpA(0, page, platform::help_command::kDisplayTopic, 0);
  const QWidget* const viewer = QWidget::find(static_cast<WId>(window));
  printLine(u"The viewer is named ", fromQString(viewer->windowTitle()));
  const QString text = viewer->findChild<QTextBrowser*>()->toPlainText();
  printLine(u"It begins with: ", fromQString(text.section(u'\n', 0, 0)));
}

/// Where there is no display nobody can answer, so the program does.
void answerLater() {
  if (QApplication::platformName() != QLatin1String("offscreen")) return;
  QTimer::singleShot(0, qApp, [] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    printLine(u"The box asks: ", fromQString(box->text()));
    box->button(QMessageBox::Yes)->click();
  });
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const tessaly::qt::Dialogs dialogs;

  showHelp(kPage);
  showHelp(kMissing);

  answerLater();
  platform::MessageBoxes& boxes = *platform::desktop().messageBoxes;
  const Long answer =
      boxes.MessageBoxW(boxes.GetActiveWindow(), u"Удалить отчёт <b>?</b>", u"Reports", kQuestion);
  printLine(u"The answer is ", answer);
}
