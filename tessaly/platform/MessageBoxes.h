#pragma once

#include "tessaly/base/Types.h"
#include "tessaly/platform/Messages.h"

namespace tessaly::platform {

/// Message boxes, by the platform's own calls. Texts are wide and end with a NUL. No call throws but for want
/// of memory.
struct MessageBoxes {
  virtual ~MessageBoxes() = default;

  /// The window of the calling thread that is active; 0 where there is none.
  virtual WindowHandle GetActiveWindow() = 0;

  /// Shows a box before its owner, 0 for none, and returns when the user has answered: the number of the
  /// button, or 0 where no box could be shown. The type is the platform's own, of buttons, icon, default
  /// button and more.
  virtual Long MessageBoxW(WindowHandle owner, const char16_t* text, const char16_t* caption, Long type) = 0;
};

}  // namespace tessaly::platform
