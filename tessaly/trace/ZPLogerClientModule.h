#pragma once

#include "tessaly/platform/Messages.h"

/// How a client finds the logger: by the title of its window. For one thread at a time.
namespace tessaly {

/// What the search under way has found; 0 for nothing.
extern platform::WindowHandle foundWindow;

/// The first top-level window whose title, spaces at its front left out, begins with "ZPLogger server" to the
/// letter; 0 where there is none.
platform::WindowHandle FindLoggerWindow();

/// Looks at one window for the search: 0 ends it and 1 goes on. The value is not used.
Long EnumLoggerWindow(platform::WindowHandle window, Long& value);

}  // namespace tessaly
