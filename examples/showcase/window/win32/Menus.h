#pragma once

#include <windows.h>

#include <vector>

#include "examples/showcase/window/MenuItem.h"

namespace showcase {

/// Puts menus into a window's bar, in the place of those that were there.
void setMenus(HWND window, const std::vector<MenuItem>& menus);

/// Whether the menus have an enabled item of an id.
bool hasEnabledItem(HWND window, tessaly::Long id);

}  // namespace showcase
