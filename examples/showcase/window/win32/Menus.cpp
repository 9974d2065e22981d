#include "examples/showcase/window/win32/Menus.h"

#include <algorithm>

#include "tessaly/base/Text.h"

namespace showcase {
namespace {

void addItem(HMENU menu, const MenuItem& item, UINT type = 0);

HMENU makeMenu(const std::vector<MenuItem>& items) {
  const HMENU menu = CreatePopupMenu();
  for (const MenuItem& item : items) addItem(menu, item);
  return menu;
}

/// `type` has what it is beside a text or a line.
void addItem(HMENU menu, const MenuItem& item, UINT type) {
  std::wstring text = tessaly::toWide(item.text);
  MENUITEMINFOW description{};
  description.cbSize = sizeof description;
  description.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_STRING | MIIM_SUBMENU;
  description.fType = type | (text.empty() ? MFT_SEPARATOR : MFT_STRING);
  description.fState = (item.isEnabled ? MFS_ENABLED : MFS_GRAYED) | (item.isChecked ? MFS_CHECKED : 0U);
  description.wID = static_cast<UINT>(item.id);
  description.dwTypeData = text.data();
  if (!item.items.empty()) description.hSubMenu = makeMenu(item.items);
  if (text.empty()) description.fMask &= ~UINT{MIIM_STRING};
  InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &description);
}

}  // namespace

void setMenus(HWND window, const std::vector<MenuItem>& menus, bool isFromRight) {
  // The window itself is not mirrored, and so neither is its bar.
  std::vector<MenuItem> ordered = menus;
  if (isFromRight) std::reverse(ordered.begin(), ordered.end());
  const HMENU bar = CreateMenu();
  for (const MenuItem& menu : ordered) {
    addItem(bar, menu, isFromRight ? MFT_RIGHTJUSTIFY : 0);
  }
  const HMENU former = GetMenu(window);
  SetMenu(window, bar);
  DrawMenuBar(window);
  if (former != nullptr) DestroyMenu(former);
}

bool hasEnabledItem(HWND window, tessaly::Long id) {
  const UINT state = GetMenuState(GetMenu(window), static_cast<UINT>(id), MF_BYCOMMAND);
  return state != static_cast<UINT>(-1) && (state & (MF_GRAYED | MF_DISABLED)) == 0;
}

}  // namespace showcase
