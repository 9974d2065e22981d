#include "examples/showcase/window/win32/Menus.h"

#include "tessaly/base/Text.h"

namespace showcase {
namespace {

void addItem(HMENU menu, const MenuItem& item);

HMENU makeMenu(const std::vector<MenuItem>& items) {
  const HMENU menu = CreatePopupMenu();
  for (const MenuItem& item : items) addItem(menu, item);
  return menu;
}

void addItem(HMENU menu, const MenuItem& item) {
  std::wstring text = tessaly::toWide(item.text);
  MENUITEMINFOW description{};
  description.cbSize = sizeof description;
  description.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_STRING | MIIM_SUBMENU;
  description.fType = text.empty() ? MFT_SEPARATOR : MFT_STRING;
  description.fState = (item.isEnabled ? MFS_ENABLED : MFS_GRAYED) | (item.isChecked ? MFS_CHECKED : 0U);
  description.wID = static_cast<UINT>(item.id);
  description.dwTypeData = text.data();
  if (!item.items.empty()) description.hSubMenu = makeMenu(item.items);
  if (text.empty()) description.fMask &= ~UINT{MIIM_STRING};
  InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &description);
}

}  // namespace

void setMenus(HWND window, const std::vector<MenuItem>& menus) {
  const HMENU bar = CreateMenu();
  for (const MenuItem& menu : menus) addItem(bar, menu);
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
