#include "tessaly/hosts/qt/AccessiblePress.h"

#include "tessaly/hosts/qt/WidgetContainer.h"

namespace tessaly::qt {

AccessiblePress::AccessiblePress(WidgetContainer& widget, QAccessible::Role role)
    : QAccessibleWidget(&widget, role) {}

QStringList AccessiblePress::actionNames() const {
  QStringList names = QAccessibleWidget::actionNames();
  if (canBePressed()) names.prepend(pressAction());
  return names;
}

void AccessiblePress::doAction(const QString& name) {
  if (name != pressAction() || !canBePressed()) return QAccessibleWidget::doAction(name);
  auto* const pressed = static_cast<WidgetContainer*>(object());
  const auto press = [pressed] {
    if (pressed->isEnabled()) pressed->press();
  };
  QMetaObject::invokeMethod(pressed, press, Qt::QueuedConnection);
}

}  // namespace tessaly::qt
