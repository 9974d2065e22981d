#pragma once

#include "tessaly/base/Rounding.h"

namespace tessaly {

/// Twice a number of pixels, as for a border on both sides; error 6 outside 32 bits.
inline Long doubled(Long pixels) { return roundToLong(2.0 * pixels); }

}  // namespace tessaly
