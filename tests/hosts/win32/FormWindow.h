#pragma once

#include <windows.h>

#include <functional>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/forms/Geometry.h"

namespace tessaly::tests {

/// A top-level window of 400 by 300 inside with a white background, and windows of controls on it. Messages
/// come only while it is pumped. What the library reports to its error handler is kept.
class FormWindow {
 public:
  FormWindow();
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;
  ~FormWindow();

  HWND window() const { return window_; }

  /// A child window of a class, made by CreateWindowEx.
  HWND add(const wchar_t* className, const RECT& bounds, DWORD style = 0, const wchar_t* text = L"") const;

  /// A picture button of 48 by 48 at a place, with a border of 2.
  transparentBitmap& addButton(PixelPoint place = {20, 20}, DWORD style = 0);

  /// The window of the button that was added last.
  HWND button() const { return button_; }

  const std::vector<Long>& errors() const { return errors_; }

 private:
  HWND window_;
  HWND button_ = nullptr;
  std::vector<Long> errors_;
};

/// Handles messages until something is so. False where it is not within ten seconds.
bool pumpUntil(const std::function<bool()>& isSo);

/// Handles messages until one of a number has come for a window; false as above.
bool pumpUntilMessage(HWND window, UINT number);

/// Handles all messages that wait.
void pump();

/// A dialog of a form that opens and closes again.
void passDialog(HWND form);

/// Ends the timers that a control's window runs; how many there were.
int endTimersOf(HWND window);

/// Real input: the pointer to a point of a window's client area, a button or key down or up. What it brings
/// is handled when the call returns.
void movePointer(HWND window, PixelPoint point);
void press(DWORD button = MOUSEEVENTF_LEFTDOWN);
void release(DWORD button = MOUSEEVENTF_LEFTUP);
void keyDown(WORD key);
void keyUp(WORD key);

/// A key up whose message goes to nobody's window, as where a menu is open.
void keyUpTakenElsewhere(WORD key);

}  // namespace tessaly::tests
