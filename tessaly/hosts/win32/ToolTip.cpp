#include "tessaly/hosts/win32/ToolTip.h"

#include <commctrl.h>

#include <utility>

namespace tessaly::win32 {
namespace {

/// The whole window as a tool. The size is the one that every version of the common controls takes.
TTTOOLINFOW toolOf(HWND window, std::wstring& text) {
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.uFlags = TTF_IDISHWND;
  tool.hwnd = window;
  tool.uId = reinterpret_cast<UINT_PTR>(window);
  tool.lpszText = text.data();
  return tool;
}

void send(HWND tip, UINT message, TTTOOLINFOW& tool) {
  SendMessageW(tip, message, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace

void ToolTip::set(HWND window, std::wstring text) {
  text_ = std::move(text);
  if (text_.empty()) return tip_.reset();
  if (tip_ == nullptr) return make(window);
  TTTOOLINFOW tool = toolOf(window, text_);
  send(tip_.get(), TTM_UPDATETIPTEXTW, tool);
}

void ToolTip::relay(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (tip_ == nullptr) return;
  MSG told{window, message, wParam, lParam, static_cast<DWORD>(GetMessageTime()), {}};
  GetCursorPos(&told.pt);
  SendMessageW(tip_.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&told));
}

void ToolTip::make(HWND window) {
  const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_BAR_CLASSES};
  InitCommonControlsEx(&classes);
  constexpr DWORD kStyle = WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX;
  tip_.reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, kStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                             CW_USEDEFAULT, CW_USEDEFAULT, window, nullptr, nullptr, nullptr));
  TTTOOLINFOW tool = toolOf(window, text_);
  if (tip_ != nullptr) send(tip_.get(), TTM_ADDTOOLW, tool);
}

}  // namespace tessaly::win32
