#pragma once

#include <windows.h>

namespace tessaly::win32 {

class ChildWindow;

/// The answer to WM_GETOBJECT: the window's own accessible object, but that it tells the control's role and
/// state and clicks it.
LRESULT answerOf(ChildWindow& window, WPARAM wParam) noexcept;

}  // namespace tessaly::win32
