#pragma once

#include "examples/showcase/window/Reports.h"

namespace showcase {

/// Does what a user would do, from button to button, and leaves the pointer on the last of them.
void walk(Window& window, Reports& reports);

}  // namespace showcase
