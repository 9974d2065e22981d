#include "examples/showcase/window/win32/Win32Window.h"

#include <commctrl.h>

#include <algorithm>

#include "examples/showcase/window/OpenWindow.h"
#include "examples/showcase/window/win32/Parts.h"
#include "examples/showcase/window/win32/Picture.h"
#include "tessaly/base/RuntimeError.h"
#include "tessaly/base/Text.h"
#include "tessaly/hosts/win32/Controls.h"

namespace showcase {

using tessaly::RuntimeError;
using tessaly::toWide;

namespace {

constexpr wchar_t kWindowClass[] = L"Tessaly.Reports";
constexpr int kWidth = 780;
constexpr int kHeight = 520;

constexpr LPARAM pointAt(int x, int y) { return y << 16 | x; }

void setFont(HWND window, HFONT font) {
  SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

/// Lays a child out from the right, or from the left again.
void mirror(HWND child, bool isFromRight) {
  const LONG_PTR style = GetWindowLongPtrW(child, GWL_EXSTYLE);
  SetWindowLongPtrW(child, GWL_EXSTYLE, isFromRight ? style | WS_EX_LAYOUTRTL : style & ~WS_EX_LAYOUTRTL);
  InvalidateRect(child, nullptr, TRUE);
}

}  // namespace

Win32Window::Win32Window(int show) : font_(messageFont()), nextDistance_(kMargin) {
  const HINSTANCE program = GetModuleHandleW(nullptr);
  const INITCOMMONCONTROLSEX used{sizeof used, ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&used);
  tessaly::win32::registerControls(program);
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = procedure;
  description.hInstance = program;
  description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  description.lpszClassName = kWindowClass;
  RegisterClassExW(&description);
  RECT outer{0, 0, kWidth, kHeight};
  AdjustWindowRectEx(&outer, WS_OVERLAPPEDWINDOW, FALSE, 0);
  CreateWindowExW(0, kWindowClass, L"", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT,
                  outer.right - outer.left, outer.bottom - outer.top, nullptr, nullptr, program, this);
  if (window_ == nullptr) throw RuntimeError(RuntimeError::OutOfMemory);
  toolTips_ = makeToolTips(window_);
  list_ = makeList(window_);
  status_ = makeStatus(window_);
  setFont(status_, font_.get());
  layOut();
  // Some children draw nothing in a window that is hidden, also where it is a picture that they draw.
  ShowWindow(window_, show);
}

Win32Window::~Win32Window() {
  if (window_ != nullptr) DestroyWindow(window_);
}

LRESULT CALLBACK Win32Window::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* const created =
        static_cast<Win32Window*>(reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    created->window_ = window;
  }
  auto* const self = reinterpret_cast<Win32Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  const auto answer = self == nullptr ? std::nullopt : self->handle(message, wParam, lParam);
  return answer ? *answer : DefWindowProcW(window, message, wParam, lParam);
}

std::optional<LRESULT> Win32Window::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      layOut();
      return 0;
    case WM_ERASEBKGND:
      paintToolBar(reinterpret_cast<HDC>(wParam));
      return 1;
    case WM_NOTIFY:
      return colourRow(lParam);
    case WM_DESTROY:
      window_ = nullptr;
      PostQuitMessage(0);
      return 0;
    default:
      return std::nullopt;
  }
}

LRESULT Win32Window::colourRow(LPARAM notification) const {
  const auto& head = *reinterpret_cast<const NMHDR*>(notification);
  if (head.hwndFrom != list_ || head.code != NM_CUSTOMDRAW) return CDRF_DODEFAULT;
  auto& drawing = *reinterpret_cast<NMLVCUSTOMDRAW*>(notification);
  if (drawing.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (drawing.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) {
    drawing.clrText = drawing.nmcd.lItemlParam != 0 ? kFaint : kInk;
  }
  return CDRF_DODEFAULT;
}

void Win32Window::paintToolBar(HDC context) const {
  fill(context, {0, 0, width(), kToolBarHeight}, static_cast<COLORREF>(kToolBarColour));
  fill(context, {0, kToolBarHeight - 1, width(), kToolBarHeight}, kLineColour);
  for (const int line : lines_) {
    const int x = isFromRight_ ? width() - line : line;
    fill(context, {x, 2 * kMargin, x + 1, kToolBarHeight - 2 * kMargin}, kLineColour);
  }
}

int Win32Window::width() const {
  RECT inside{};
  GetClientRect(window_, &inside);
  return inside.right;
}

void Win32Window::layOut() {
  for (const Placed& button : buttons_) {
    const int left = isFromRight_ ? width() - button.distance - kButtonSide : button.distance;
    SetWindowPos(button.window, nullptr, left, kMargin, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  if (status_ == nullptr) return;
  SendMessageW(status_, WM_SIZE, 0, 0);
  fitStatus(status_, width());
  RECT inside{};
  GetClientRect(window_, &inside);
  RECT below{};
  GetWindowRect(status_, &below);
  MoveWindow(list_, 0, kToolBarHeight, inside.right,
             static_cast<int>(inside.bottom - kToolBarHeight - (below.bottom - below.top)), TRUE);
  fitColumns(list_);
  InvalidateRect(window_, nullptr, TRUE);
}

void Win32Window::setTitle(std::u16string_view title) { SetWindowTextW(window_, toWide(title).c_str()); }

// The buttons' own surfaces stay as they are, so the window mirrors their places itself.
void Win32Window::setRightToLeft(bool isRightToLeft) {
  isFromRight_ = isRightToLeft;
  for (const HWND child : {list_, status_}) mirror(child, isRightToLeft);
  mirror(reinterpret_cast<HWND>(SendMessageW(list_, LVM_GETHEADER, 0, 0)), isRightToLeft);
  layOut();
}

tessaly::transparentBitmap& Win32Window::addButton() {
  const HWND button = CreateWindowExW(0, tessaly::win32::kPictureButtonClass, L"",
                                      WS_CHILD | WS_VISIBLE | WS_TABSTOP, nextDistance_, kMargin, kButtonSide,
                                      kButtonSide, window_, nullptr, GetModuleHandleW(nullptr), nullptr);
  if (button == nullptr) throw RuntimeError(RuntimeError::OutOfMemory);
  // Tab goes through the children in their order: buttons first, the list behind them.
  SetWindowPos(button, buttons_.empty() ? HWND_TOP : buttons_.back().window, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  buttons_.push_back({button, nextDistance_});
  nextDistance_ += kButtonSide + kSpacing;
  return *tessaly::win32::pictureButtonOf(button);
}

void Win32Window::addGap() {
  lines_.push_back(nextDistance_ + (kGroupGap - kSpacing) / 2);
  nextDistance_ += kGroupGap;
}

HWND Win32Window::windowOf(const tessaly::transparentBitmap& button) const {
  return std::find_if(
             buttons_.begin(), buttons_.end(),
             [&](const Placed& placed) { return tessaly::win32::pictureButtonOf(placed.window) == &button; })
      ->window;
}

void Win32Window::nameButton(const tessaly::transparentBitmap& button, std::u16string_view name) {
  const std::wstring text = toWide(name);
  SetWindowTextW(windowOf(button), text.c_str());
  setToolTip(toolTips_, windowOf(button), text);
}

void Win32Window::setColumns(const std::array<tessaly::String, 4>& headings) {
  for (std::size_t i = 0; i < headings.size(); ++i)
    setColumn(list_, static_cast<int>(i), toWide(headings[i]));
  fitColumns(list_);
}

void Win32Window::setListFont(std::u16string_view name, tessaly::Long points) {
  tessaly::win32::OwnedFont font(fontOf(toWide(name), points));
  setFont(list_, font.get());
  listFont_ = std::move(font);
}

void Win32Window::addEvent(const Event& event) {
  const int row = addRow(list_, event.isMinor);
  for (std::size_t i = 0; i < event.cells.size(); ++i) {
    setCell(list_, row, static_cast<int>(i), toWide(event.cells[i]));
  }
  SendMessageW(list_, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

void Win32Window::setStatus(const std::array<tessaly::String, 3>& parts) {
  const WPARAM direction = isFromRight_ ? SBT_RTLREADING : 0;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    SendMessageW(status_, SB_SETTEXTW, i | direction, reinterpret_cast<LPARAM>(toWide(parts[i]).c_str()));
  }
}

void Win32Window::point(const tessaly::transparentBitmap& button) {
  SendMessageW(windowOf(button), WM_MOUSEMOVE, 0, pointAt(kButtonSide / 2, kButtonSide / 2));
}

void Win32Window::press(const tessaly::transparentBitmap& button) {
  SendMessageW(windowOf(button), BM_CLICK, 0, 0);
}

void Win32Window::hold(const tessaly::transparentBitmap& button) {
  SetFocus(windowOf(button));
  SendMessageW(windowOf(button), WM_KEYDOWN, VK_SPACE, 0);
}

void Win32Window::release(const tessaly::transparentBitmap& button) {
  SendMessageW(windowOf(button), WM_KEYUP, VK_SPACE, 0);
}

void Win32Window::handleNext() {
  MSG message;
  if (GetMessageW(&message, nullptr, 0, 0) <= 0) return;
  if (window_ != nullptr && IsDialogMessageW(window_, &message) != FALSE) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

tessaly::PictureReference Win32Window::picture() { return pictureOf(window_); }

void Win32Window::run() {
  ShowWindow(window_, SW_SHOW);
  while (window_ != nullptr) handleNext();
}

std::unique_ptr<Window> openWindow(int& /*argc*/, char** /*argv*/, bool isToBeSeen) {
  // A console that was opened for this program alone would stand beside the window.
  DWORD process = 0;
  if (isToBeSeen && GetConsoleProcessList(&process, 1) == 1) FreeConsole();
  return std::make_unique<Win32Window>(isToBeSeen ? SW_HIDE : SW_SHOWNOACTIVATE);
}

}  // namespace showcase
