#pragma once

#include <QMenuBar>
#include <functional>
#include <vector>

#include "examples/showcase/window/MenuItem.h"

namespace showcase {

/// Puts menus into a bar, in the place of those that were there; `chosen` is told the id of an item. The keys
/// behind the texts are shown alone.
void setMenus(QMenuBar& bar, const std::vector<MenuItem>& menus,
              const std::function<void(tessaly::Long id)>& chosen);

/// Chooses the item with an id, as the user would; one that is not enabled does nothing.
void chooseItem(const QMenuBar& bar, tessaly::Long id);

}  // namespace showcase
