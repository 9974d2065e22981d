#include "tessaly/hosts/qt/AccessibleLink.h"

#include <QAccessibleWidget>

#include "tessaly/hosts/qt/UrlLink.h"

namespace tessaly::qt {
namespace {

class AccessibleLink final : public QAccessibleWidget {
 public:
  explicit AccessibleLink(UrlLink& link) : QAccessibleWidget(&link, QAccessible::Link) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.linked = true;
    return state;
  }

  QString text(QAccessible::Text kind) const override {
    QString told = QAccessibleWidget::text(kind);
    if (kind == QAccessible::Name && told.isEmpty()) told = link().text();
    return kind == QAccessible::Value ? link().URL() : told;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (link().isEnabled()) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name == pressAction() && link().isEnabled()) {
      link().press();
    } else {
      QAccessibleWidget::doAction(name);
    }
  }

 private:
  UrlLink& link() const { return *static_cast<UrlLink*>(object()); }
};

QAccessibleInterface* accessibleOfLink(const QString& className, QObject* object) {
  const bool isLink = className == QLatin1String("tessaly::qt::UrlLink");
  auto* const link = isLink ? qobject_cast<UrlLink*>(object) : nullptr;
  return link != nullptr ? new AccessibleLink(*link) : nullptr;
}

}  // namespace

void installAccessibleLink() {
  static const bool installed = [] {
    QAccessible::installFactory(accessibleOfLink);
    return true;
  }();
  static_cast<void>(installed);
}

void tellNameOfLink(UrlLink& link) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&link, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

}  // namespace tessaly::qt
