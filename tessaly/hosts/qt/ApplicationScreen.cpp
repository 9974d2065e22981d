#include "tessaly/hosts/qt/ApplicationScreen.h"

#include <QGuiApplication>

#include "tessaly/hosts/qt/Cursors.h"

namespace tessaly::qt {
namespace {

class ApplicationScreen final : public Screen {
 public:
  std::int16_t MousePointer() const override { return Screen::MousePointer(); }

  void MousePointer(std::int16_t pointer) override {
    const bool isShown = Screen::MousePointer() != 0;
    Screen::MousePointer(pointer);
    if (pointer == 0) {
      if (isShown) QGuiApplication::restoreOverrideCursor();
    } else if (isShown) {
      QGuiApplication::changeOverrideCursor(cursorOf(pointer, {}));
    } else {
      QGuiApplication::setOverrideCursor(cursorOf(pointer, {}));
    }
  }
};

}  // namespace

Screen& applicationScreen() {
  static ApplicationScreen screen;
  return screen;
}

}  // namespace tessaly::qt
