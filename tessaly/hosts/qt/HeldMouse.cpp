#include "tessaly/hosts/qt/HeldMouse.h"

#include <QApplication>
#include <QWidget>
#include <utility>

#include "tessaly/hosts/qt/Mouse.h"

namespace tessaly::qt {

void HeldMouse::pressed(MouseState button) {
  buttons_ = static_cast<MouseState>(buttons_ | button);
  isKnownToQt_ = (mouseState(QGuiApplication::mouseButtons()) & button) != 0;
}

MouseState HeldMouse::takeAll() { return std::exchange(buttons_, MouseState{0}); }

bool HeldMouse::isTaken(const QWidget& widget) const {
  if (buttons_ == 0) return false;
  const QWidget* const menu = QApplication::activePopupWidget();
  const bool hasMenu = menu != nullptr && menu != widget.window();
  return hasMenu || (isKnownToQt_ && QGuiApplication::mouseButtons() == Qt::NoButton);
}

}  // namespace tessaly::qt
