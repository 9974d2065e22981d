#include "tessaly/hosts/qt/Pointer.h"

#include <QCursor>
#include <QGuiApplication>
#include <QWidget>
#include <QtMath>

namespace tessaly::qt {
namespace {

/// An X server inside of a Wayland session is told no more than Wayland's own programs are.
bool isTold() {
  const QString platform = QGuiApplication::platformName();
  const bool isX = platform == QLatin1String("xcb");
  return !platform.startsWith(QLatin1String("wayland")) &&
         !(isX && qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
}

}  // namespace

Pointer::Pointer() : isAsked_(isTold()) {}

void Pointer::seen(const QPointF& onScreen) {
  isOnWidget_ = true;
  last_ = pixelAt(onScreen);
}

QPoint Pointer::position(const QWidget& widget) const {
  if (isAsked_) return QCursor::pos();
  return isOnWidget_ ? last_ : widget.mapToGlobal(QPoint(-1, -1));
}

QPoint pixelAt(const QPointF& point) { return {qFloor(point.x()), qFloor(point.y())}; }

}  // namespace tessaly::qt
