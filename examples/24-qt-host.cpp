// A whole host in Qt: texts in the user's language, and a picture button that asks before it acts.

#include <QApplication>
#include <QVBoxLayout>

#include "tessaly/dialogs/modMsgBoxW.h"
#include "tessaly/hosts/qt/Dialogs.h"
#include "tessaly/hosts/qt/PictureButton.h"
#include "tessaly/localisation/CResources.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const tessaly::qt::Dialogs dialogs;  // message boxes and help

  tessaly::CResources texts;
  texts.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");  // whose files: the showcase's
  texts.resourcesPath(u"examples/showcase/languages");
  texts.SetDefaultLang();  // the user's language, or English

  QWidget window;
  auto* const layout = new QVBoxLayout(&window);
  auto* const save = new tessaly::qt::PictureButton(&window);
  save->Picture(QPixmap("examples/contact-sheet/pictures/save.png"));
  save->backcolor(0xEFEFEF);  // black if it is not told
  save->withBorder(1);        // above 0 it answers to the pointer
  QObject::connect(save, &tessaly::qt::PictureButton::OnButtonClick, [&] {
    const auto question = texts.resWithArg(154, u"Sales.rep", u"");  // "Save the changes to Sales.rep?"
    if (tessaly::MsgBoxW(question, 0x24, u"") == 6) window.close();  // asks Yes or No; 6 is Yes
  });
  layout->addWidget(save);
  window.show();
  return QApplication::exec();
}
