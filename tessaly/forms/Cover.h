#pragma once

#include <cstdint>

/// How much a pixel of a picture covers what is below it: its highest byte, 0 to 255.
namespace tessaly {

inline constexpr std::uint32_t kCovers = 0xFF000000;
inline constexpr std::uint32_t kCoversHalf = 0x80000000;

}  // namespace tessaly
