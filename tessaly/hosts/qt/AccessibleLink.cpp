#include "tessaly/hosts/qt/AccessibleLink.h"

#include "tessaly/hosts/qt/AccessiblePress.h"
#include "tessaly/hosts/qt/UrlLink.h"

namespace tessaly::qt {
namespace {

class AccessibleLink final : public AccessiblePress {
 public:
  explicit AccessibleLink(UrlLink& link) : AccessiblePress(link, QAccessible::Link) {}

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

 private:
  bool canBePressed() const override { return link().isEnabled(); }
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
