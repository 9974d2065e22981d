// A Qt host with help and message boxes: one object puts them into force. The help file is that of the tests,
// and the settings that name its folder are a stand-in's, so that those of the machine stay as they are.

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>

#include "examples/support/Print.h"
#include "tessaly/dialogs/CHelp.h"
#include "tessaly/dialogs/modMsgBoxW.h"
#include "tessaly/hosts/qt/Dialogs.h"
#include "tessaly/hosts/qt/Text.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Registry.h"
#include "tessaly/settings/CRegistry.h"

using examples::printLine;
using tessaly::False;
using tessaly::Long;
using tessaly::True;
using tessaly::qt::fromQString;

namespace {

/// Yes and No with a question mark, and No for who presses Return.
constexpr Long kQuestion = 0x124;
constexpr std::int16_t kF1 = 112;

/// What an installer does.
void installHelp(const QTemporaryDir& folder) {
  QFile::copy("tests/hosts/qt/help/guide.chm", folder.filePath("Tessaly.chm"));
  tessaly::CRegistry settings;
  settings.root(0);  // HKEY_LOCAL_MACHINE
  settings.rootPath(u"SOFTWARE\\BRAMWELD SYSTEM\\Tessaly");
  settings.SetString(u"Path", fromQString(folder.path()));
}

void tellWhatIsShown() {
  for (const QWidget* const window : QApplication::topLevelWidgets()) {
    const auto* const page = window->findChild<QTextBrowser*>();
    if (page == nullptr || !window->isVisible()) continue;
    printLine(u"The viewer is named ", fromQString(window->windowTitle()));
    printLine(u"It begins with: ", fromQString(page->toPlainText().section(u'\n', 0, 0)));
  }
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

  tessaly::platform::fake::Registry registry;
  const tessaly::platform::Override registryInForce(registry);
  const QTemporaryDir folder;
  installHelp(folder);

  tessaly::CHelp help;
  if (help.HelpKey(kF1, 0)) help.ShowTopic(0, u"Settings", u"language", False, True);
  tellWhatIsShown();
  help.ShowTopic(0, u"Nowhere", u"", False, True);
  tellWhatIsShown();

  answerLater();
  printLine(u"The answer is ", tessaly::MsgBoxW(u"Удалить отчёт <b>?</b>", kQuestion, u"Reports"));
}
