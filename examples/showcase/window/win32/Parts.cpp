#include "examples/showcase/window/win32/Parts.h"

#include <commctrl.h>

#include <algorithm>
#include <memory>

#include "tessaly/hosts/win32/Handles.h"

namespace showcase {
namespace {

constexpr int kColumns = 4;
constexpr std::array<int, 3> kColumnWidths = {84, 190, 180};
constexpr int kRowHeight = 22;
constexpr int kStatusPart = 170;
constexpr int kPointsPerInch = 72;

HWND makeChild(HWND parent, const wchar_t* className, DWORD style) {
  return CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent, nullptr,
                         GetModuleHandleW(nullptr), nullptr);
}

NONCLIENTMETRICSW metrics() {
  NONCLIENTMETRICSW result{};
  result.cbSize = sizeof result;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof result, &result, 0);
  return result;
}

int pixelsPerInch() {
  const tessaly::win32::OwnedContext context(CreateCompatibleDC(nullptr));
  return GetDeviceCaps(context.get(), LOGPIXELSY);
}

}  // namespace

void fill(HDC context, const RECT& area, COLORREF colour) {
  const tessaly::win32::OwnedBrush brush(CreateSolidBrush(colour));
  FillRect(context, &area, brush.get());
}

HFONT messageFont() {
  const NONCLIENTMETRICSW all = metrics();
  return CreateFontIndirectW(&all.lfMessageFont);
}

HFONT fontOf(const std::wstring& name, int points) {
  LOGFONTW font = metrics().lfMessageFont;
  if (points > 0) font.lfHeight = -MulDiv(points, pixelsPerInch(), kPointsPerInch);
  if (!name.empty()) {
    const std::size_t length = std::min<std::size_t>(name.size(), LF_FACESIZE - 1);
    std::fill(std::copy_n(name.begin(), length, font.lfFaceName), std::end(font.lfFaceName), L'\0');
  }
  return CreateFontIndirectW(&font);
}

HWND makeList(HWND parent) {
  const HWND list =
      makeChild(parent, WC_LISTVIEWW, WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_NOSORTHEADER);
  SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
  // A row is as high as its picture, here an empty one; the list lets go of it.
  SendMessageW(list, LVM_SETIMAGELIST, LVSIL_SMALL,
               reinterpret_cast<LPARAM>(ImageList_Create(1, kRowHeight, ILC_COLOR, 0, 1)));
  return list;
}

HWND makeStatus(HWND parent) { return makeChild(parent, STATUSCLASSNAMEW, 0); }

HWND makeToolTips(HWND parent) {
  return CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0,
                         0, 0, 0, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
}

void setColumn(HWND list, int column, std::wstring heading) {
  LVCOLUMNW description{};
  description.mask = LVCF_TEXT;
  description.pszText = heading.data();
  if (SendMessageW(list, LVM_SETCOLUMNW, static_cast<WPARAM>(column),
                   reinterpret_cast<LPARAM>(&description)) != FALSE) {
    return;
  }
  description.mask = LVCF_TEXT | LVCF_WIDTH;
  const auto place = static_cast<std::size_t>(column);
  description.cx = place < kColumnWidths.size() ? kColumnWidths[place] : 0;
  SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&description));
}

int addRow(HWND list, bool isMinor) {
  LVITEMW item{};
  item.mask = LVIF_PARAM;
  item.iItem = static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
  item.lParam = isMinor ? 1 : 0;
  return static_cast<int>(SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
}

void setCell(HWND list, int row, int column, std::wstring text) {
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = text.data();
  SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void fitColumns(HWND list) { SendMessageW(list, LVM_SETCOLUMNWIDTH, kColumns - 1, LVSCW_AUTOSIZE_USEHEADER); }

void fitStatus(HWND status, int width) {
  const std::array<int, 3> ends = {width - 2 * kStatusPart, width - kStatusPart, -1};
  SendMessageW(status, SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
}

void setToolTip(HWND toolTips, HWND child, std::wstring text) {
  TTTOOLINFOW tool{};
  // The size that every version of the common controls takes.
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = GetParent(child);
  tool.uId = reinterpret_cast<UINT_PTR>(child);
  tool.lpszText = text.data();
  SendMessageW(toolTips, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  SendMessageW(toolTips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace showcase
