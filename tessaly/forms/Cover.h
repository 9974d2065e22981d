#pragma once

#include <cstdint>

namespace tessaly {

/// How much a pixel of a picture covers what is below it: its highest byte, 0 to 255.
inline constexpr std::uint32_t kCovers = 0xFF000000;

}  // namespace tessaly
