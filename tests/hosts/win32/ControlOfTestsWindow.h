#pragma once

#include <windows.h>

#include "tessaly/hosts/win32/ChildWindow.h"
#include "tests/forms/ControlOfTests.h"
#include "tests/hosts/win32/FormWindow.h"

namespace tessaly::tests {

/// The window class of the control that writes down its events.
inline constexpr wchar_t kClassOfTests[] = L"Tessaly.ControlOfTests";

inline const win32::ControlKind kKindOfTests{
    kClassOfTests,
    [](Container& container) -> std::shared_ptr<void> { return std::make_shared<ControlOfTests>(container); },
    0, [](const void*) { return true; }};

inline LRESULT CALLBACK procedureOfTests(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return win32::ChildWindow::receive(kKindOfTests, window, message, wParam, lParam);
}

inline ControlOfTests& controlOf(HWND window) {
  return *static_cast<ControlOfTests*>(win32::ChildWindow::of(window)->control());
}

/// A form with one such control of 40 by 30 at 20, 10.
class ControlOfTestsWindow {
 public:
  explicit ControlOfTestsWindow(DWORD style = 0) {
    win32::registerKind(GetModuleHandleW(nullptr), kKindOfTests, procedureOfTests);
    window_ = form_.add(kClassOfTests, {20, 10, 60, 40}, style);
    pump();
  }

  FormWindow& form() { return form_; }
  HWND window() const { return window_; }
  ControlOfTests& control() const { return controlOf(window_); }
  Container& container() const { return control().surface().container(); }

 private:
  FormWindow form_;
  HWND window_;
};

}  // namespace tessaly::tests
