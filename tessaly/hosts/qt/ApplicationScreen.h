#pragma once

#include "tessaly/forms/Screen.h"

namespace tessaly::qt {

/// The screen of all forms of the application: its pointer lies above every widget's own.
Screen& applicationScreen();

}  // namespace tessaly::qt
