#pragma once

#include <QAccessibleWidget>

namespace tessaly::qt {

class WidgetContainer;

/// A control's widget to assistive technology, which can press it. The press comes when the loop does, and
/// not if the widget goes before, or a dialog comes that stands before it: what it raises may show a dialog,
/// and whoever asked waits for the answer.
class AccessiblePress : public QAccessibleWidget {
 public:
  AccessiblePress(WidgetContainer& widget, QAccessible::Role role);

  QStringList actionNames() const override;
  void doAction(const QString& name) override;

 private:
  bool isPressable() const;

  /// Whether the control can be used, as far as it is its own matter.
  virtual bool canBePressed() const = 0;
};

}  // namespace tessaly::qt
