// The copy with a see-through colour as the platform itself has it, beside as many bytes by memcpy.

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "bench/CopyScenes.h"
#include "bench/windows/Compare.h"
#include "tessaly/platform/Desktop.h"

namespace tessaly::bench {
namespace {

constexpr int kCallsOfLarge = 100;

/// Whether the copy is the one expected.
bool measure(const CopyScene& scene) {
  platform::Drawing& drawing = *platform::desktop().drawing;
  const platform::DeviceContext source = drawing.createSurface(scene.side, scene.side);
  const platform::DeviceContext target = drawing.createSurface(scene.shownSide, scene.shownSide);
  std::copy(scene.pixels.begin(), scene.pixels.end(), drawing.pixels(source).pixels);
  const std::vector<std::uint32_t> expected = expectedCopy(scene);
  std::fill_n(drawing.pixels(target).pixels, expected.size(), kBackground);
  const auto copy = [&] {
    drawing.TransparentBlt(target, 0, 0, scene.shownSide, scene.shownSide, source, 0, 0, scene.side,
                           scene.side, static_cast<Long>(kKey));
    drawing.pixels(target);
  };
  copy();
  const bool isAsExpected = std::equal(expected.begin(), expected.end(), drawing.pixels(target).pixels);
  std::vector<std::uint32_t> bytes(expected.size());
  std::uint32_t* const pixels = drawing.pixels(target).pixels;
  compare(scene.name,
          {{"limit: as many bytes by memcpy",
            [&] { std::memcpy(pixels, bytes.data(), bytes.size() * sizeof(std::uint32_t)); },
            {}},
           {"the platform's TransparentBlt", copy, {}}},
          scene.name == kIcon ? kCallsInRound : kCallsOfLarge);
  drawing.deleteSurface(source);
  drawing.deleteSurface(target);
  return isAsExpected;
}

}  // namespace
}  // namespace tessaly::bench

int main() {
  using namespace tessaly::bench;
  for (const CopyScene& scene : copyScenes()) {
    if (!measure(scene)) return std::fputs("drawing-bench: a wrong copy\n", stderr), 1;
  }
  return 0;
}
