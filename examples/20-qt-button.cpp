// A Qt host with a picture button: properties and events bear the control's names, pictures are Qt's own, and
// the layout finds room for it.

#include <QApplication>
#include <QHBoxLayout>

#include "examples/support/Print.h"
#include "tessaly/hosts/qt/PictureButton.h"

using examples::printLine;
using tessaly::qt::PictureButton;

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QWidget window;
  auto* const layout = new QHBoxLayout(&window);
  auto* const open = new PictureButton(&window);
  layout->addWidget(open);

  open->backcolor(0xF0D8B0);
  open->Picture(QPixmap("examples/contact-sheet/pictures/open.png"));
  open->AddBitmap(QPixmap("examples/contact-sheet/pictures/new-16.png"), 8, 0xFF00FF);
  open->withBorder(1);
  QObject::connect(open, &PictureButton::OnButtonSelected, [] { printLine(u"selected"); });
  QObject::connect(open, &PictureButton::OnButtonClick, [] { printLine(u"clicked"); });

  // What a host changes counts: to this button the right button of the mouse is the left one.
  QObject::connect(open, &PictureButton::MouseDown, [](std::int16_t* Button) {
    if (*Button == 2) *Button = 1;
  });

  // Off at first: Tab reaches it, the space bar and Return press it.
  open->setFocusPolicy(Qt::TabFocus);
  open->setAccessibleName("Open");
  window.show();
  printLine(u"The button is ", open->width(), u" by ", open->height());

  // Where there is no display nobody can click, so the program does.
  if (QApplication::platformName() == "offscreen") {
    open->press();
    return 0;
  }
  return QApplication::exec();
}
