#pragma once

#include <algorithm>
#include <cstdint>

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// A part of one axis of a surface, from `first` to before `last`.
struct Span {
  Long first;
  Long last;

  Long size() const { return last - first; }
  bool isEmpty() const { return first >= last; }
};

/// One axis of an area that is copied to one of another size; the sizes are at least 1.
struct ScaledAxis {
  Long start;
  Long size;
  Long sourceSize;

  /// What can be seen of the target's area on a surface of this size.
  Span visible(Long surfaceSize) const {
    return {std::max<Long>(start, 0),
            static_cast<Long>(std::min<std::int64_t>(std::int64_t{start} + size, surfaceSize))};
  }

  /// Which pixel, counted from the start of the source's area, a place of the target takes: the nearest one.
  Long sourceOf(Long place) const {
    return static_cast<Long>((std::int64_t{place} - start) * sourceSize / size);
  }
};

}  // namespace tessaly::platform
