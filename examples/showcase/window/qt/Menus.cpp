#include "examples/showcase/window/qt/Menus.h"

#include <QAction>
#include <QMenu>

#include "tessaly/hosts/qt/Text.h"

namespace showcase {
namespace {

using Chosen = std::function<void(tessaly::Long id)>;

void addItem(QMenu& menu, const MenuItem& item, const Chosen& chosen);

void addItems(QMenu& menu, const std::vector<MenuItem>& items, const Chosen& chosen) {
  for (const MenuItem& item : items) addItem(menu, item, chosen);
}

void addItem(QMenu& menu, const MenuItem& item, const Chosen& chosen) {
  const QString text = tessaly::qt::toQString(item.text);
  if (text.isEmpty()) {
    menu.addSeparator();
  } else if (!item.items.empty()) {
    addItems(*menu.addMenu(text), item.items, chosen);
  } else {
    QAction* const action = menu.addAction(text);
    action->setData(item.id);
    action->setEnabled(item.isEnabled);
    action->setCheckable(item.isChecked);
    action->setChecked(item.isChecked);
    QObject::connect(action, &QAction::triggered, &menu, [chosen, id = item.id] { chosen(id); });
  }
}

}  // namespace

void setMenus(QMenuBar& bar, const std::vector<MenuItem>& menus, const Chosen& chosen) {
  const auto former = bar.findChildren<QMenu*>(Qt::FindDirectChildrenOnly);
  bar.clear();
  // One of them may be what asks for others.
  for (QMenu* const menu : former) menu->deleteLater();
  for (const MenuItem& menu : menus) {
    addItems(*bar.addMenu(tessaly::qt::toQString(menu.text)), menu.items, chosen);
  }
}

void chooseItem(const QMenuBar& bar, tessaly::Long id) {
  for (QAction* const menu : bar.actions()) {
    for (QAction* const action : menu->menu()->actions()) {
      if (!action->isSeparator() && action->data().toInt() == id) return action->trigger();
    }
  }
}

}  // namespace showcase
