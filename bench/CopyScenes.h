#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly::bench {

/// A picture with see-through pixels and the size at which it is copied. All contestants copy the same.
struct CopyScene {
  std::string name;
  Long side = 0;
  Long shownSide = 0;

  /// Row by row, red, green and blue in the low three bytes.
  std::vector<std::uint32_t> pixels;

  std::string benchmark(const std::string& contestant) const { return name + '/' + contestant; }
  bool isScaled() const { return side != shownSide; }
};

/// The see-through colour: magenta, the same number as a pixel and as a colour with red in the low byte.
inline constexpr std::uint32_t kKey = 0xFF00FF;

/// What the target is filled with before.
inline constexpr std::uint32_t kBackground = 0xC0C0C0;

/// The last of a large copy and the copy of an icon, which goals ask for by name.
inline const std::string kInCircle = "copy of 1000 by 1000, 21 % see-through around a circle";
inline const std::string kAtRandom = "copy of 1000 by 1000, 30 % see-through at random";
inline const std::string kScaled = "copy of 500 by 500 to 1000 by 1000, 21 % see-through";
inline const std::string kIcon = "copy of an icon, 32 by 32";

const std::vector<CopyScene>& copyScenes();

/// What the target holds after the copy.
std::vector<std::uint32_t> expectedCopy(const CopyScene& scene);

}  // namespace tessaly::bench
