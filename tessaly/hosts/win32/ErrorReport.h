#pragma once

#include <windows.h>

#include "tessaly/base/RuntimeError.h"

namespace tessaly::win32 {

/// Tells the host's handler of an error, or else shows it in a message box. While the box is shown further
/// errors of the same thread are not, since the box itself lets timers run and windows be painted.
void report(HWND window, const RuntimeError& error) noexcept;

}  // namespace tessaly::win32
