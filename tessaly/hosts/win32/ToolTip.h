#pragma once

#include <windows.h>

#include <string>

#include "tessaly/hosts/win32/Handles.h"

namespace tessaly::win32 {

/// What is shown when the pointer rests on a window. It is the system's own tooltip, made when there is a
/// text.
class ToolTip {
 public:
  /// An empty text shows nothing.
  void set(HWND window, std::wstring text);

  /// For the window's procedure: a message of the mouse.
  void relay(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  void close() { tip_.reset(); }

 private:
  void make(HWND window);

  std::wstring text_;
  OwnedWindow tip_;
};

}  // namespace tessaly::win32
