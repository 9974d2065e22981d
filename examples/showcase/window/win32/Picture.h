#pragma once

#include <windows.h>

#include "tessaly/forms/Picture.h"

namespace showcase {

/// What a window shows inside its frame, with all its visible children, as they draw it themselves: so no
/// display is needed. Raises error 7 where there is no memory for it.
tessaly::PictureReference pictureOf(HWND window);

}  // namespace showcase
