#include "tests/hosts/win32/FormWindow.h"

#include <gtest/gtest.h>

#include "tessaly/hosts/win32/Controls.h"
#include "tessaly/hosts/win32/Timers.h"

namespace tessaly::tests {
namespace {

constexpr wchar_t kClass[] = L"Form of the tests";
constexpr DWORD kLongestWait = 10000;
constexpr double kWholeScreen = 65535;

void registerForm() {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = DefWindowProcW;
  description.hInstance = GetModuleHandleW(nullptr);
  description.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
  description.lpszClassName = kClass;
  RegisterClassExW(&description);
}

void handle(MSG& message) {
  if (IsDialogMessageW(GetAncestor(message.hwnd, GA_ROOT), &message) != FALSE) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

void send(INPUT& input) { ASSERT_EQ(SendInput(1, &input, sizeof input), 1U); }

void sendMouse(DWORD flags, LONG x = 0, LONG y = 0) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi = {x, y, 0, flags, 0, 0};
  send(input);
  pump();
}

void sendKey(WORD key, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki = {key, 0, flags, 0, 0};
  send(input);
}

}  // namespace

FormWindow::FormWindow() {
  registerForm();
  win32::registerControls(GetModuleHandleW(nullptr));
  win32::setErrorHandler([this](HWND, const RuntimeError& error) { errors_.push_back(error.number()); });
  RECT outer{0, 0, 400, 300};
  AdjustWindowRectEx(&outer, WS_OVERLAPPEDWINDOW, FALSE, WS_EX_TOPMOST);
  // Windows of other programs do not come between it and the pointer.
  window_ = CreateWindowExW(WS_EX_TOPMOST, kClass, L"A form", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 50, 50,
                            outer.right - outer.left, outer.bottom - outer.top, nullptr, nullptr,
                            GetModuleHandleW(nullptr), nullptr);
  movePointer(window_, {300, 200});
  ShowWindow(window_, SW_SHOW);
  SetForegroundWindow(window_);
  pump();
}

FormWindow::~FormWindow() {
  DestroyWindow(window_);
  pump();
  win32::setErrorHandler({});
}

HWND FormWindow::add(const wchar_t* className, const RECT& bounds, DWORD style, const wchar_t* text) const {
  return CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style, bounds.left, bounds.top,
                         bounds.right - bounds.left, bounds.bottom - bounds.top, window_, nullptr,
                         GetModuleHandleW(nullptr), nullptr);
}

transparentBitmap& FormWindow::addButton(PixelPoint place, DWORD style) {
  button_ = add(win32::kPictureButtonClass, {place.x, place.y, place.x + 48, place.y + 48}, style);
  transparentBitmap& result = *win32::pictureButtonOf(button_);
  result.withBorder(2);
  return result;
}

namespace {

/// Handles messages, telling of each, until something is so.
template <class IsSo, class Told>
bool handleUntil(const IsSo& isSo, const Told& told) {
  const ULONGLONG deadline = GetTickCount64() + kLongestWait;
  while (!isSo()) {
    const ULONGLONG now = GetTickCount64();
    if (now >= deadline) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(deadline - now), QS_ALLINPUT);
    MSG message;
    if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) == FALSE) continue;
    handle(message);
    told(message);
  }
  return true;
}

}  // namespace

bool pumpUntil(const std::function<bool()>& isSo) {
  return handleUntil(isSo, [](const MSG&) {});
}

bool pumpUntilMessage(HWND window, UINT number) {
  bool came = false;
  return handleUntil(
      [&] { return came; },
      [&](const MSG& message) { came = came || (message.hwnd == window && message.message == number); });
}

void pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) handle(message);
}

void passDialog(HWND form) {
  SetTimer(form, 1, 10, [](HWND window, UINT, UINT_PTR number, DWORD) {
    const HWND box = FindWindowW(L"#32770", L"A dialog of the tests");
    if (box == nullptr) return;
    KillTimer(window, number);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  });
  MessageBoxW(form, L"Done", L"A dialog of the tests", MB_OK);
}

int endTimersOf(HWND window) {
  int found = 0;
  for (UINT_PTR number = 1; number <= 20; ++number) {
    found += KillTimer(window, win32::Timers::kNumbersBegin + number) != FALSE ? 1 : 0;
  }
  return found;
}

void movePointer(HWND window, PixelPoint point) {
  POINT place{point.x, point.y};
  ClientToScreen(window, &place);
  const auto share = [](LONG measure, int metric) {
    return static_cast<LONG>((measure + 0.5) * (kWholeScreen + 1) / GetSystemMetrics(metric));
  };
  sendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, share(place.x, SM_CXSCREEN),
            share(place.y, SM_CYSCREEN));
  POINT reached{};
  GetCursorPos(&reached);
  ASSERT_EQ(reached.x, place.x);
  ASSERT_EQ(reached.y, place.y);
}

void press(DWORD button) { sendMouse(button); }
void release(DWORD button) { sendMouse(button); }

void keyDown(WORD key) {
  sendKey(key, 0);
  pump();
}

void keyUp(WORD key) {
  sendKey(key, KEYEVENTF_KEYUP);
  pump();
}

void keyUpTakenElsewhere(WORD key) {
  sendKey(key, KEYEVENTF_KEYUP);
  MSG message;
  ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_KEYUP, WM_KEYUP, PM_REMOVE));
}

}  // namespace tessaly::tests
