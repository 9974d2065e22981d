#pragma once

#include <cstddef>
#include <cstdint>

#include "tessaly/base/Types.h"

/// The loops that every picture goes through. Source and target do not overlap.
namespace tessaly::platform {

/// Rows of pixels, each `step` pixels behind the one before.
struct TargetRows {
  std::uint32_t* first;
  std::ptrdiff_t step;
};

/// With a step of 0 each row is the first.
struct SourceRows {
  const std::uint32_t* first;
  std::ptrdiff_t step;
};

/// Copies pixels but those of the key, a colour of 24 bits.
void copyButKey(TargetRows target, SourceRows source, Long width, Long height, std::uint32_t key);

/// Puts the source's pixels of these columns side by side.
void gatherColumns(std::uint32_t* target, const std::uint32_t* source, const Long* columns, Long count);

}  // namespace tessaly::platform
