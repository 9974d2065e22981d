#include "bench/CopyScenes.h"

#include <random>

namespace tessaly::bench {
namespace {

std::uint32_t colourAt(Long x, Long y) {
  return static_cast<std::uint32_t>(((x & 0xFF) << 16) | ((y & 0xFF) << 8) | ((x ^ y) & 0x7F));
}

template <class IsKey>
std::vector<std::uint32_t> picture(Long side, IsKey isKey) {
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
  for (Long y = 0; y < side; ++y) {
    for (Long x = 0; x < side; ++x) pixels.push_back(isKey(x, y) ? kKey : colourAt(x, y));
  }
  return pixels;
}

/// All outside of the circle that touches the sides.
std::vector<std::uint32_t> circle(Long side) {
  return picture(side, [side](Long x, Long y) {
    const Long right = 2 * x + 1 - side;
    const Long down = 2 * y + 1 - side;
    return right * right + down * down > side * side;
  });
}

std::vector<std::uint32_t> scattered(Long side) {
  std::mt19937 generator(1);
  return picture(side, [&generator](Long, Long) { return generator() % 10 < 3; });
}

}  // namespace

const std::vector<CopyScene>& copyScenes() {
  static const std::vector<CopyScene> scenes = {{kInCircle, 1000, 1000, circle(1000)},
                                                {kAtRandom, 1000, 1000, scattered(1000)},
                                                {kScaled, 500, 1000, circle(500)},
                                                {kIcon, 32, 32, circle(32)}};
  return scenes;
}

std::vector<std::uint32_t> expectedCopy(const CopyScene& scene) {
  std::vector<std::uint32_t> pixels;
  for (Long y = 0; y < scene.shownSide; ++y) {
    for (Long x = 0; x < scene.shownSide; ++x) {
      const Long from = y * scene.side / scene.shownSide * scene.side + x * scene.side / scene.shownSide;
      const std::uint32_t pixel = scene.pixels[static_cast<std::size_t>(from)];
      pixels.push_back(pixel == kKey ? kBackground : pixel);
    }
  }
  return pixels;
}

}  // namespace tessaly::bench
