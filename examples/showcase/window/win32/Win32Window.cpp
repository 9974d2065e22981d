#include "examples/showcase/window/win32/Win32Window.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "examples/showcase/window/OpenWindow.h"
#include "examples/showcase/window/win32/DialogWindow.h"
#include "examples/showcase/window/win32/Lists.h"
#include "examples/showcase/window/win32/Menus.h"
#include "examples/showcase/window/win32/Parts.h"
#include "examples/showcase/window/win32/Picture.h"
#include "tessaly/base/RuntimeError.h"
#include "tessaly/base/Text.h"
#include "tessaly/hosts/win32/Controls.h"

namespace showcase {

using tessaly::Long;
using tessaly::RuntimeError;
using tessaly::toWide;

namespace {

constexpr wchar_t kWindowClass[] = L"Tessaly.Reports";
constexpr int kWidth = 820;
constexpr int kHeight = 640;
constexpr int kEventsHeight = 140;
constexpr int kColumnWidth = 140;
constexpr std::array<int, 4> kEventWidths = {84, 190, 180, 0};

constexpr LPARAM pointAt(int x, int y) { return y << 16 | x; }

std::int16_t heldKeys() {
  const auto held = [](int key) { return (GetKeyState(key) & 0x8000) != 0; };
  return static_cast<std::int16_t>((held(VK_SHIFT) ? 1 : 0) | (held(VK_CONTROL) ? 2 : 0) |
                                   (held(VK_MENU) ? 4 : 0));
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
  AdjustWindowRectEx(&outer, WS_OVERLAPPEDWINDOW, TRUE, 0);
  CreateWindowExW(WS_EX_NOINHERITLAYOUT, kWindowClass, L"", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                  CW_USEDEFAULT, CW_USEDEFAULT, outer.right - outer.left, outer.bottom - outer.top, nullptr,
                  nullptr, program, this);
  if (window_ == nullptr) throw RuntimeError(RuntimeError::OutOfMemory);
  toolTips_ = makeToolTips(window_);
  grid_ = makeList(window_);
  events_ = makeList(window_);
  status_ = makeStatus(window_);
  for (const HWND child : {events_, status_}) setFont(child, font_.get());
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
  const auto answer = self == nullptr ? std::nullopt : self->answer(message, wParam, lParam);
  return answer ? *answer : DefWindowProcW(window, message, wParam, lParam);
}

std::optional<LRESULT> Win32Window::answer(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      layOut();
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE) keepFocus();
      return std::nullopt;
    case WM_SETFOCUS:
      SetFocus(IsChild(window_, focus_) != FALSE ? focus_ : grid_);
      return 0;
    case WM_ERASEBKGND:
      paintToolBar(reinterpret_cast<HDC>(wParam));
      return 1;
    case WM_NOTIFY:
      return take(*reinterpret_cast<const NMHDR*>(lParam));
    case WM_COMMAND:
      if (lParam != 0 || !handlers.onCommand) return std::nullopt;
      handlers.onCommand(LOWORD(wParam));
      return 0;
    case WM_CLOSE:
      closeNow();
      return 0;
    case WM_DESTROY:
      window_ = nullptr;
      isClosed_ = true;
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> Win32Window::take(const NMHDR& notification) {
  const bool isList = notification.hwndFrom == grid_ || notification.hwndFrom == events_;
  if (isList && notification.code == NM_CUSTOMDRAW) return colourOf(reinterpret_cast<LPARAM>(&notification));
  if (notification.hwndFrom == grid_ && notification.code == LVN_COLUMNCLICK && handlers.onHeading) {
    handlers.onHeading(reinterpret_cast<const NMLISTVIEW&>(notification).iSubItem);
    return 0;
  }
  return std::nullopt;
}

void Win32Window::paintToolBar(HDC context) const {
  fill(context, {0, 0, width(), kToolBarHeight}, static_cast<COLORREF>(kToolBarColour));
  fill(context, {0, kToolBarHeight - 1, width(), kToolBarHeight}, kLineColour);
  for (const int line : lines_) {
    fill(context, {line, 2 * kMargin, line + 1, kToolBarHeight - 2 * kMargin}, kLineColour);
  }
}

/// While another window is used, it goes from the child that had it to the window itself.
void Win32Window::keepFocus() {
  const HWND focus = GetFocus();
  if (IsChild(window_, focus) != FALSE) focus_ = focus;
}

int Win32Window::width() const {
  RECT inside{};
  GetClientRect(window_, &inside);
  return inside.right;
}

void Win32Window::layOut() {
  for (const Placed& button : buttons_) {
    SetWindowPos(button.window, nullptr, button.distance, kMargin, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  if (status_ == nullptr) return;
  SendMessageW(status_, WM_SIZE, 0, 0);
  fitStatus(status_, width());
  RECT inside{};
  GetClientRect(window_, &inside);
  RECT below{};
  GetWindowRect(status_, &below);
  const int end = static_cast<int>(inside.bottom - (below.bottom - below.top));
  const int middle = std::max(kToolBarHeight, end - kEventsHeight);
  MoveWindow(grid_, 0, kToolBarHeight, inside.right, middle - kToolBarHeight, TRUE);
  MoveWindow(events_, 0, middle, inside.right, end - middle, TRUE);
  fitColumns(grid_);
  fitColumns(events_);
  InvalidateRect(window_, nullptr, TRUE);
}

tessaly::platform::WindowHandle Win32Window::handle() {
  return reinterpret_cast<tessaly::platform::WindowHandle>(window_);
}

void Win32Window::setTitle(std::u16string_view title) { SetWindowTextW(window_, toWide(title).c_str()); }

// What stands in a mirrored window is placed from the right. The buttons' pictures stay as they are: no child
// takes after it but where it is told.
void Win32Window::setRightToLeft(bool isRightToLeft) {
  isFromRight_ = isRightToLeft;
  mirror(window_, isRightToLeft);
  SetWindowPos(window_, nullptr, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  for (const HWND list : {grid_, events_}) mirrorList(list, isRightToLeft);
  mirror(status_, isRightToLeft);
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

void Win32Window::setMenu(const std::vector<MenuItem>& menus) { setMenus(window_, menus); }

void Win32Window::setGrid(const Grid& grid) {
  std::vector<ListHeading> headings;
  for (const auto& heading : grid.headings) {
    const bool isSorted = static_cast<Long>(headings.size()) == grid.sortedColumn;
    const int direction = grid.isDescending ? -1 : 1;
    headings.push_back({toWide(heading.text), kColumnWidth, heading.isOfNumbers, isSorted ? direction : 0});
  }
  SendMessageW(grid_, WM_SETREDRAW, FALSE, 0);
  setHeadings(grid_, headings);
  removeRows(grid_);
  for (const auto& row : grid.rows) addRow(grid_, row, false);
  fitColumns(grid_);
  if (grid.selected >= 0) selectRow(grid_, grid.selected);
  SendMessageW(grid_, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(grid_, nullptr, TRUE);
}

Long Win32Window::selectedRow() { return showcase::selectedRow(grid_); }

void Win32Window::setGridFont(std::u16string_view name, Long points) {
  tessaly::win32::OwnedFont font(fontOf(toWide(name), points));
  setFont(grid_, font.get());
  gridFont_ = std::move(font);
}

void Win32Window::setEventHeadings(const std::array<tessaly::String, 4>& headings) {
  std::vector<ListHeading> all;
  for (std::size_t i = 0; i < headings.size(); ++i) {
    all.push_back({.text = toWide(headings[i]), .width = kEventWidths[i]});
  }
  setHeadings(events_, all);
}

void Win32Window::setEvents(const std::vector<Event>& events) {
  removeRows(events_);
  for (const Event& event : events) addEvent(event);
}

void Win32Window::addEvent(const Event& event) {
  addRow(events_, {event.cells.begin(), event.cells.end()}, event.isMinor);
  // A scroll bar may have come.
  fitColumns(events_);
  scrollToEnd(events_);
}

void Win32Window::setStatus(const std::array<tessaly::String, 3>& parts) {
  for (std::size_t i = 0; i < parts.size(); ++i) {
    SendMessageW(status_, SB_SETTEXTW, i, reinterpret_cast<LPARAM>(toWide(parts[i]).c_str()));
  }
}

Long Win32Window::runDialog(Dialog& dialog) {
  return DialogWindow(dialog, std::exchange(visit_, nullptr)).run(window_, isFromRight_);
}

// Later, since what asks for it may still be at work on the window.
void Win32Window::close() { PostMessageW(window_, WM_CLOSE, 0, 0); }

// The buttons last as long as this does.
void Win32Window::closeNow() {
  if (handlers.onClose && !handlers.onClose()) return;
  ShowWindow(window_, SW_HIDE);
  isClosed_ = true;
}

void Win32Window::choose(Long id) {
  if (hasEnabledItem(window_, id)) SendMessageW(window_, WM_COMMAND, static_cast<WPARAM>(id), 0);
}

void Win32Window::clickHeading(Long column) { handlers.onHeading(column); }

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
  if (takeKey(message)) return;
  if (window_ != nullptr && IsDialogMessageW(window_, &message) != FALSE) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

bool Win32Window::takeKey(const MSG& message) const {
  const bool isKey = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
  const bool isOurs = window_ != nullptr && GetAncestor(message.hwnd, GA_ROOT) == window_;
  return isKey && isOurs && handlers.onKey &&
         handlers.onKey(static_cast<std::int16_t>(message.wParam), heldKeys());
}

tessaly::PictureReference Win32Window::picture() { return pictureOf(window_); }

void Win32Window::run() {
  if (IsWindowVisible(window_) == FALSE) ShowWindow(window_, SW_SHOW);
  while (!isClosed_) handleNext();
}

std::shared_ptr<Window> openWindow(int& /*argc*/, char** /*argv*/, bool isToBeSeen) {
  // A console that was opened for this program alone would stand beside the window.
  DWORD process = 0;
  if (isToBeSeen && GetConsoleProcessList(&process, 1) == 1) FreeConsole();
  return std::make_shared<Win32Window>(isToBeSeen ? SW_HIDE : SW_SHOWNOACTIVATE);
}

bool drawsHelp() { return false; }

}  // namespace showcase
