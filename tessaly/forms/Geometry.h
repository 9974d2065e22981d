#pragma once

#include "tessaly/base/Types.h"

namespace tessaly {

struct PixelPoint {
  Long x = 0;
  Long y = 0;

  bool operator==(const PixelPoint&) const = default;
};

struct PixelSize {
  Long width = 0;
  Long height = 0;

  bool operator==(const PixelSize&) const = default;
};

}  // namespace tessaly
