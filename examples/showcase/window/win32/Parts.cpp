#include "examples/showcase/window/win32/Parts.h"

#include <commctrl.h>

#include <algorithm>

#include "tessaly/hosts/win32/Handles.h"

namespace showcase {
namespace {

constexpr int kStatusPart = 170;
constexpr int kPointsPerInch = 72;

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

HFONT headingFont() {
  LOGFONTW font = metrics().lfMessageFont;
  font.lfHeight = font.lfHeight * 3 / 2;
  font.lfWeight = FW_BOLD;
  return CreateFontIndirectW(&font);
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

HWND makeChild(HWND parent, const wchar_t* className, DWORD style) {
  return CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, parent, nullptr,
                         GetModuleHandleW(nullptr), nullptr);
}

HWND makeStatus(HWND parent) { return makeChild(parent, STATUSCLASSNAMEW, 0); }

HWND makeToolTips(HWND parent) {
  return CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0,
                         0, 0, 0, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
}

void setFont(HWND window, HFONT font) {
  SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void mirror(HWND child, bool isFromRight) {
  const LONG_PTR style = GetWindowLongPtrW(child, GWL_EXSTYLE);
  SetWindowLongPtrW(child, GWL_EXSTYLE, isFromRight ? style | WS_EX_LAYOUTRTL : style & ~WS_EX_LAYOUTRTL);
  InvalidateRect(child, nullptr, TRUE);
}

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
