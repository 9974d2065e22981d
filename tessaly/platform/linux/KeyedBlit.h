#pragma once

#include "tessaly/platform/linux/DrawingObjects.h"

namespace tessaly::platform {

/// One copy of an area to another but for a key colour, scaled where the sizes differ. The sizes are at least
/// 1, and the source's area lies within it; the target's may lie anywhere.
struct KeyedBlit {
  struct Area {
    Long x, y, width, height;
  };

  MemorySurface& target;
  Area targetArea;
  const MemorySurface& source;
  Area sourceArea;
  std::uint32_t key;

  void run() const;
};

}  // namespace tessaly::platform
