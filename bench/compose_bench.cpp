// A whole composition of a picture button, as each change of a property runs it: the surface cleared, the
// main picture and three overlays put on it. The button stands on a form without a display.

#include <benchmark/benchmark.h>

#include <algorithm>

#include "bench/ButtonScene.h"
#include "bench/CopyScenes.h"
#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/forms/headless/Form.h"

namespace tessaly::bench {
namespace {

PictureReference pictureOf(const SquarePicture& square) {
  std::vector<std::uint32_t> pixels = square.pixels;
  for (std::uint32_t& pixel : pixels) pixel |= 0xFF000000U;
  return std::make_shared<const Picture>(PixelSize{square.side, square.side}, std::move(pixels));
}

bool isAsExpected(const Picture& picture, const ButtonScene& scene) {
  const std::vector<std::uint32_t> expected = expectedButton(scene);
  return std::equal(expected.begin(), expected.end(), picture.pixels().begin(), picture.pixels().end(),
                    [](std::uint32_t want, std::uint32_t got) { return want == (got & 0xFFFFFFU); });
}

void compose(benchmark::State& state) {
  const ButtonScene scene = buttonScene();
  headless::Form form;
  auto& button = form.add<transparentBitmap>({0, 0, scene.main.side, scene.main.side});
  button.backcolor(static_cast<Long>(kBackground));
  button.Picture(pictureOf(scene.main));
  for (const Overlay& overlay : scene.overlays) {
    button.AddBitmap(pictureOf(overlay.picture), overlay.anchor, static_cast<Long>(kKey));
  }
  if (!isAsExpected(*form.placeOf(button).picture(), scene)) state.SkipWithError("a wrong picture");
  for (auto _ : state) {
    button.maskColor(static_cast<Long>(kKey));
    benchmark::ClobberMemory();
  }
}

const auto* const added = benchmark::RegisterBenchmark((kComposition + "/Tessaly").c_str(), &compose);

}  // namespace
}  // namespace tessaly::bench
