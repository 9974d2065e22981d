#pragma once

#include <windows.h>

#include "tessaly/platform/Messages.h"

namespace tessaly::platform {

/// Makes a hidden top-level window of the calling thread that hands registered messages to the handler; null
/// where that fails. The handler must outlive it.
HWND makeHandlerWindow(const char* title, MessageHandler& handler);

/// Whether such a window is meant, and it exists in this process.
bool isHandlerWindow(HWND window);

}  // namespace tessaly::platform
