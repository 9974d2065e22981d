#pragma once

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"

namespace tessaly {

/// The nearest integer, ties to the even neighbour. Raises error 6 outside 32 bits and for what is no number.
TESSALY_API Long roundToLong(double value);

}  // namespace tessaly
