#include "examples/showcase/window/win32/Lists.h"

#include <commctrl.h>

#include <algorithm>

#include "examples/showcase/window/win32/Parts.h"
#include "tessaly/base/Text.h"

namespace showcase {
namespace {

constexpr int kRowHeight = 22;
constexpr int kLeastWidth = 80;

int countOf(HWND list) { return static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0)); }

HWND headerOf(HWND list) { return reinterpret_cast<HWND>(SendMessageW(list, LVM_GETHEADER, 0, 0)); }

int columnsOf(HWND list) { return static_cast<int>(SendMessageW(headerOf(list), HDM_GETITEMCOUNT, 0, 0)); }

void showSorting(HWND list, int column, int sorted) {
  HDITEMW item{};
  item.mask = HDI_FORMAT;
  SendMessageW(headerOf(list), HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
  item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
  if (sorted != 0) item.fmt |= sorted > 0 ? HDF_SORTUP : HDF_SORTDOWN;
  SendMessageW(headerOf(list), HDM_SETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
}

void setCell(HWND list, int row, int column, std::wstring text) {
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = text.data();
  SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

}  // namespace

HWND makeList(HWND parent) {
  const HWND list =
      makeChild(parent, WC_LISTVIEWW, WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS);
  SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
  // A row is as high as its picture, here an empty one; the list lets go of it.
  SendMessageW(list, LVM_SETIMAGELIST, LVSIL_SMALL,
               reinterpret_cast<LPARAM>(ImageList_Create(1, kRowHeight, ILC_COLOR, 0, 1)));
  return list;
}

void setHeadings(HWND list, const std::vector<ListHeading>& headings) {
  for (std::size_t i = 0; i < headings.size(); ++i) {
    const int column = static_cast<int>(i);
    std::wstring text = headings[i].text;
    LVCOLUMNW description{};
    description.mask = LVCF_TEXT | LVCF_FMT;
    description.fmt = headings[i].isOfNumbers ? LVCFMT_RIGHT : LVCFMT_LEFT;
    description.pszText = text.data();
    description.cx = headings[i].width;
    const bool isThere = column < columnsOf(list);
    if (!isThere) description.mask |= LVCF_WIDTH;
    SendMessageW(list, isThere ? LVM_SETCOLUMNW : LVM_INSERTCOLUMNW, i,
                 reinterpret_cast<LPARAM>(&description));
    showSorting(list, column, headings[i].sorted);
  }
  fitColumns(list);
}

void addRow(HWND list, const std::vector<tessaly::String>& cells, bool isMinor) {
  LVITEMW item{};
  item.mask = LVIF_PARAM;
  item.iItem = countOf(list);
  item.lParam = isMinor ? 1 : 0;
  const int row = static_cast<int>(SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
  for (std::size_t i = 0; i < cells.size(); ++i) {
    setCell(list, row, static_cast<int>(i), tessaly::toWide(cells[i]));
  }
}

void removeRows(HWND list) { SendMessageW(list, LVM_DELETEALLITEMS, 0, 0); }

int selectedRow(HWND list) {
  return static_cast<int>(SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void selectRow(HWND list, int row) {
  LVITEMW item{};
  item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  item.state = item.stateMask;
  SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  SendMessageW(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

void scrollToEnd(HWND list) {
  SendMessageW(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(countOf(list) - 1), FALSE);
}

void fitColumns(HWND list) {
  const int last = columnsOf(list) - 1;
  RECT inside{};
  GetClientRect(list, &inside);
  auto rest = static_cast<int>(inside.right);
  for (int column = 0; column < last; ++column) {
    rest -= static_cast<int>(SendMessageW(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0));
  }
  if (last >= 0)
    SendMessageW(list, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(last), std::max(rest, kLeastWidth));
}

LRESULT colourOf(LPARAM notification) {
  auto& drawing = *reinterpret_cast<NMLVCUSTOMDRAW*>(notification);
  if (drawing.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (drawing.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) {
    drawing.clrText = drawing.nmcd.lItemlParam != 0 ? kFaint : kInk;
  }
  return CDRF_DODEFAULT;
}

void mirrorList(HWND list, bool isFromRight) {
  mirror(list, isFromRight);
  mirror(headerOf(list), isFromRight);
}

}  // namespace showcase
