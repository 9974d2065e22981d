#include "tessaly/hosts/qt/AccessibleButton.h"

#include "tessaly/hosts/qt/AccessiblePress.h"
#include "tessaly/hosts/qt/PictureButton.h"

namespace tessaly::qt {
namespace {

class AccessibleButton final : public AccessiblePress {
 public:
  explicit AccessibleButton(PictureButton& button) : AccessiblePress(button, QAccessible::Button) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.disabled = state.disabled || !button().enabled();
    state.pressed = button().enabled() && button().isPressHeld();
    return state;
  }

 private:
  bool canBePressed() const override { return !state().disabled; }
  PictureButton& button() const { return *static_cast<PictureButton*>(object()); }
};

QAccessibleInterface* accessibleOf(const QString& className, QObject* object) {
  const bool isButton = className == QLatin1String("tessaly::qt::PictureButton");
  auto* const button = isButton ? qobject_cast<PictureButton*>(object) : nullptr;
  return button != nullptr ? new AccessibleButton(*button) : nullptr;
}

}  // namespace

void installAccessibleButton() {
  static const bool installed = [] {
    QAccessible::installFactory(accessibleOf);
    return true;
  }();
  static_cast<void>(installed);
}

void tellAccessibility(PictureButton& button) {
  if (!QAccessible::isActive()) return;
  QAccessible::State changed;
  changed.disabled = true;
  QAccessibleStateChangeEvent event(&button, changed);
  QAccessible::updateAccessibility(&event);
}

}  // namespace tessaly::qt
