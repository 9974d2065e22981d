#include "tessaly/base/Rounding.h"

#include <cmath>
#include <limits>

#include "tessaly/base/RuntimeError.h"

namespace tessaly {

Long roundToLong(double value) {
  // Not std::nearbyint, which follows the rounding mode that a host may have set.
  const double below = std::floor(value);
  const double rest = value - below;
  const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0);
  const double rounded = up ? below + 1 : below;
  const bool fits =
      rounded >= std::numeric_limits<Long>::min() && rounded <= std::numeric_limits<Long>::max();
  if (!fits) throw RuntimeError(RuntimeError::Overflow);
  return static_cast<Long>(rounded);
}

}  // namespace tessaly
