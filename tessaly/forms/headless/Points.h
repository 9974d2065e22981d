#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include "tessaly/forms/Geometry.h"

namespace tessaly::headless {

/// What fits, since a test may put the pointer as far away as there are numbers.
inline Long fitted(std::int64_t measure) {
  return static_cast<Long>(
      std::clamp<std::int64_t>(measure, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()));
}

inline PixelPoint sum(PixelPoint point, PixelPoint other) {
  return {fitted(std::int64_t{point.x} + other.x), fitted(std::int64_t{point.y} + other.y)};
}

inline PixelPoint difference(PixelPoint point, PixelPoint other) {
  return {fitted(std::int64_t{point.x} - other.x), fitted(std::int64_t{point.y} - other.y)};
}

}  // namespace tessaly::headless
