// A Qt host that takes the library as its users do.

#include <QApplication>
#include <QImage>
#include <cstdio>

#include "tessaly/hosts/qt/PictureButton.h"
#include "tessaly/hosts/qt/Pictures.h"
#include "tessaly/hosts/qt/Text.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  tessaly::qt::PictureButton button;
  QImage picture(44, 28, QImage::Format_RGB32);
  picture.fill(Qt::red);
  button.withBorder(2);
  button.Picture(picture);
  QObject::connect(&button, &tessaly::qt::PictureButton::OnButtonClick, [&button] {
    std::printf("button %d by %d is clicked\n", button.sizeHint().width(), button.sizeHint().height());
  });
  button.press();
  return 0;
}
