#include "tessaly/hosts/qt/AccessiblePress.h"

#include <QGuiApplication>
#include <QWindow>

#include "tessaly/hosts/qt/WidgetContainer.h"

namespace tessaly::qt {
namespace {

const QWindow& rootOf(const QWindow& window) {
  const QWindow* root = &window;
  while (const QWindow* const above = root->parent(QWindow::IncludeTransients)) root = above;
  return *root;
}

/// Whether a window takes another's input: as Qt does it, all that does not belong to it, or all the windows
/// that it has a parent in common with.
bool takesInputOf(const QWindow& dialog, const QWindow& window) {
  if (dialog.modality() == Qt::NonModal) return false;
  if (&dialog == &window || dialog.isAncestorOf(&window)) return false;
  return dialog.modality() == Qt::ApplicationModal || &rootOf(dialog) == &rootOf(window);
}

/// Whether a widget is seen and no dialog stands before it. Those above the foremost dialog had input before
/// it came; it may be a desktop's own, which Qt does not show itself.
bool isReachedByInput(const QWidget& widget) {
  const QWindow* const window = widget.window()->windowHandle();
  if (window == nullptr || !widget.isVisible()) return false;
  const QWindow* const foremost = QGuiApplication::modalWindow();
  for (const QWindow* dialog = foremost; dialog != nullptr;
       dialog = dialog->parent(QWindow::IncludeTransients)) {
    if ((dialog == foremost || dialog->isVisible()) && takesInputOf(*dialog, *window)) return false;
  }
  return true;
}

}  // namespace

AccessiblePress::AccessiblePress(WidgetContainer& widget, QAccessible::Role role)
    : QAccessibleWidget(&widget, role) {}

bool AccessiblePress::isPressable() const { return canBePressed() && isReachedByInput(*widget()); }

QStringList AccessiblePress::actionNames() const {
  QStringList names = QAccessibleWidget::actionNames();
  if (isPressable()) names.prepend(pressAction());
  return names;
}

// What came before may have shown a dialog, whose loop brings the press.
void AccessiblePress::doAction(const QString& name) {
  if (name != pressAction() || !isPressable()) return QAccessibleWidget::doAction(name);
  auto* const pressed = static_cast<WidgetContainer*>(object());
  const auto press = [pressed] {
    if (pressed->isEnabled() && isReachedByInput(*pressed)) pressed->press();
  };
  QMetaObject::invokeMethod(pressed, press, Qt::QueuedConnection);
}

}  // namespace tessaly::qt
