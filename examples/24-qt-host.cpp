// A whole host in Qt: texts in the user's language, a picture button that asks before it acts, and a link.

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QVBoxLayout>

#include "examples/support/Print.h"
#include "tessaly/dialogs/modMsgBoxW.h"
#include "tessaly/hosts/qt/Dialogs.h"
#include "tessaly/hosts/qt/PictureButton.h"
#include "tessaly/hosts/qt/Text.h"
#include "tessaly/hosts/qt/UrlLink.h"
#include "tessaly/localisation/CResources.h"

using tessaly::qt::PictureButton;
using tessaly::qt::toQString;
using tessaly::qt::UrlLink;

namespace {

/// Where there is no display nobody can click or answer, so the program does.
void clickWhereNobodyCan(PictureButton* button) {
  if (QApplication::platformName() != QLatin1String("offscreen")) return;
  QTimer::singleShot(0, button, [button] {
    QTimer::singleShot(0, button, [] {
      const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      examples::printLine(u"It asks: ", tessaly::qt::fromQString(box->text()));
      box->button(QMessageBox::Yes)->click();
    });
    button->press();
  });
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const tessaly::qt::Dialogs dialogs;  // message boxes and help

  tessaly::CResources texts;
  texts.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");  // whose files: the showcase's
  texts.resourcesPath(u"examples/showcase/languages");
  texts.SetDefaultLang();  // the user's language, or English

  QWidget window;
  window.setWindowTitle(toQString(texts.res(70)));  // "Reports", "Berichte", ...
  auto* const layout = new QVBoxLayout(&window);

  auto* const save = new PictureButton(&window);
  save->Picture(QPixmap("examples/contact-sheet/pictures/save.png"));
  save->backcolor(0xF0F0F0);  // black if it is not told
  save->withBorder(1);        // above 0 it answers to the pointer
  QObject::connect(save, &PictureButton::OnButtonClick, [&] {
    const auto question = texts.resWithArg(154, u"Sales.rep", u"");  // "Save the changes to Sales.rep?"
    // Yes and No with a question mark; 6 is Yes.
    if (tessaly::MsgBoxW(question, 0x24, u"") == 6) window.close();
  });
  layout->addWidget(save);

  auto* const link = new UrlLink(&window);
  link->text(toQString(texts.res(173)));  // "Visit the web site"
  link->URL("https://www.reports.example/");
  layout->addWidget(link);

  clickWhereNobodyCan(save);
  window.show();
  return QApplication::exec();
}
