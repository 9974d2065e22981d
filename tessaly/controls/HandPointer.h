#pragma once

#include "tessaly/forms/Container.h"

namespace tessaly {

/// A pointing hand of 32 by 32 pixels, black with white inside, whose finger's tip is at (13, 5).
const MouseIcon& handPointer();

}  // namespace tessaly
