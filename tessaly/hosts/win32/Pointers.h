#pragma once

#include <windows.h>

#include "tessaly/forms/Container.h"
#include "tessaly/forms/Screen.h"
#include "tessaly/hosts/win32/Density.h"
#include "tessaly/hosts/win32/Handles.h"

namespace tessaly::win32 {

/// The system's cursor of a `MousePointer` from 1 to 15; none for 0, which leaves it to the window, and for
/// any other.
HCURSOR systemCursor(std::int16_t pointer);

/// A cursor of an icon's picture and hot spot, as large as the screen is dense; none where the picture has no
/// image, or Windows makes none.
OwnedCursor cursorOf(const MouseIcon& icon, const Density& density);

/// The window under the pointer, where it is one of this thread; or else none.
HWND windowUnderPointer();

/// Has a window choose its cursor anew, as it does when the mouse moves over it.
void chooseCursorAnew(HWND window);

/// The screen of all forms of this thread. A pointer other than 0 shows at once, and over each control until
/// it is 0 again; windows that are not the library's go on choosing theirs when the mouse moves over them.
Screen& screenOfThread();

}  // namespace tessaly::win32
