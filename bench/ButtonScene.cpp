#include "bench/ButtonScene.h"

#include "bench/CopyScenes.h"

namespace tessaly::bench {
namespace {

constexpr Long kSide = 48;

bool isCorner(Long at, Long side) { return at < side / 4 || at >= side - side / 4; }

SquarePicture square(Long side, std::uint32_t colour) {
  SquarePicture picture{side, {}};
  for (Long y = 0; y < side; ++y) {
    for (Long x = 0; x < side; ++x) {
      const auto shade = static_cast<std::uint32_t>(x + y);
      picture.pixels.push_back(isCorner(x, side) && isCorner(y, side) ? kKey : colour + shade);
    }
  }
  return picture;
}

void draw(const SquarePicture& picture, Long left, Long top, std::vector<std::uint32_t>& to) {
  for (Long y = 0; y < picture.side; ++y) {
    for (Long x = 0; x < picture.side; ++x) {
      const std::uint32_t pixel = picture.pixels[static_cast<std::size_t>(y * picture.side + x)];
      if (pixel != kKey) to[static_cast<std::size_t>((top + y) * kSide + left + x)] = pixel;
    }
  }
}

}  // namespace

ButtonScene buttonScene() {
  return {square(kSide, 0x204080),
          {{{square(16, 0xA02020), 0, 0, 0},
            {square(12, 0x20A020), 2, kSide - 12, 0},
            {square(20, 0xA0A020), 8, kSide - 20, kSide - 20}}}};
}

std::vector<std::uint32_t> expectedButton(const ButtonScene& scene) {
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(kSide) * kSide, kBackground);
  draw(scene.main, 0, 0, pixels);
  for (const Overlay& overlay : scene.overlays) draw(overlay.picture, overlay.left, overlay.top, pixels);
  return pixels;
}

}  // namespace tessaly::bench
