#pragma once

#include <windows.h>

#include "tessaly/forms/UserControl.h"

namespace tessaly::win32 {

/// Shows a control's surface in a device context, from its corner on: lines and labels above it, and above
/// all the mark of the focus where there is one. What can't be made for want of memory is not shown.
void paint(HDC target, UserControl& control, PixelSize size, bool hasFocus);

}  // namespace tessaly::win32
