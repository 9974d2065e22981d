#pragma once

#include <windows.h>

#include "tessaly/forms/UserControl.h"
#include "tessaly/hosts/win32/Density.h"

namespace tessaly::win32 {

/// What a window shows of its control: the control's size, the window's own inside, and whether it has the
/// focus.
struct Look {
  PixelSize size;
  PixelSize inside;
  Density density;
  bool hasFocus = false;
};

/// Shows a control in a device context of its window, from the corner on: the surface and its lines, each
/// pixel as large as the screen is dense, labels above them in the screen's own pixels, and above all the
/// mark of the focus where there is one. Where a pixel is no whole number of the screen's, pixels are mixed.
/// What can't be made for want of memory is not shown.
void paint(HDC target, UserControl& control, const Look& look);

}  // namespace tessaly::win32
