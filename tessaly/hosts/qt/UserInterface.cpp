#include "tessaly/hosts/qt/UserInterface.h"

#include <QApplication>
#include <QThread>
#include <QWidget>

namespace tessaly::qt {

bool canShowWindows() {
  const auto* const application = qobject_cast<const QApplication*>(QCoreApplication::instance());
  return application != nullptr && application->thread() == QThread::currentThread();
}

platform::WindowHandle handleOf(const QWidget& window) {
  return static_cast<platform::WindowHandle>(window.winId());
}

QWidget* widgetOf(platform::WindowHandle handle) {
  return handle == 0 ? nullptr : QWidget::find(static_cast<WId>(handle));
}

}  // namespace tessaly::qt
