#include "tessaly/platform/linux/KeyedCopy.h"

namespace tessaly::platform {

// No branch but arithmetic, of which the compiler makes several pixels at a time: the mask is all ones where
// the pixel is copied.
TESSALY_EACH_PROCESSOR
void copyButKey(TargetRows target, SourceRows source, Long width, Long height, std::uint32_t key) {
  std::uint32_t* __restrict to = target.first;
  const std::uint32_t* __restrict from = source.first;
  for (Long y = 0; y < height; ++y, to += target.step, from += source.step) {
    for (Long x = 0; x < width; ++x) {
      const std::uint32_t pixel = from[x] & 0xFFFFFFU;
      const std::uint32_t mask = 0U - static_cast<std::uint32_t>(pixel != key);
      to[x] = (pixel & mask) | (to[x] & ~mask);
    }
  }
}

TESSALY_EACH_PROCESSOR
void gatherColumns(std::uint32_t* __restrict target, const std::uint32_t* __restrict source,
                   const Long* __restrict columns, Long count) {
  for (Long i = 0; i < count; ++i) target[i] = source[columns[i]];
}

}  // namespace tessaly::platform
