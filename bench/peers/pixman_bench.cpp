// The same copies by pixman: the picture over the target through a mask of one byte a pixel, made beforehand.
// Nearest pixels where it is scaled.

#include <benchmark/benchmark.h>
#include <pixman.h>

#include <algorithm>
#include <memory>

#include "bench/CopyScenes.h"

namespace tessaly::bench {
namespace {

struct Unreference {
  void operator()(pixman_image_t* image) const { pixman_image_unref(image); }
};
using Image = std::unique_ptr<pixman_image_t, Unreference>;

Image makeImage(pixman_format_code_t format, Long side) {
  return Image(pixman_image_create_bits(format, side, side, nullptr, 0));
}

void fill(const Image& image, const CopyScene& scene, bool asMask) {
  auto* bytes = reinterpret_cast<std::uint8_t*>(pixman_image_get_data(image.get()));
  const int stride = pixman_image_get_stride(image.get());
  for (Long y = 0; y < scene.side; ++y) {
    for (Long x = 0; x < scene.side; ++x) {
      const std::uint32_t pixel = scene.pixels[static_cast<std::size_t>(y * scene.side + x)];
      if (asMask) {
        bytes[y * stride + x] = pixel == kKey ? 0 : 0xFF;
      } else {
        reinterpret_cast<std::uint32_t*>(bytes + y * stride)[x] = pixel;
      }
    }
  }
}

void scale(const Image& image, const CopyScene& scene) {
  if (!scene.isScaled()) return;
  pixman_transform_t transform;
  const pixman_fixed_t ratio = pixman_double_to_fixed(static_cast<double>(scene.side) / scene.shownSide);
  pixman_transform_init_scale(&transform, ratio, ratio);
  pixman_image_set_transform(image.get(), &transform);
  pixman_image_set_filter(image.get(), PIXMAN_FILTER_NEAREST, nullptr, 0);
}

bool isAsExpected(const Image& image, const CopyScene& scene) {
  const std::uint32_t* pixels = pixman_image_get_data(image.get());
  const std::vector<std::uint32_t> expected = expectedCopy(scene);
  return std::equal(expected.begin(), expected.end(), pixels,
                    [](std::uint32_t want, std::uint32_t got) { return want == (got & 0xFFFFFFU); });
}

void copyByPixman(benchmark::State& state, const CopyScene& scene) {
  const Image source = makeImage(PIXMAN_x8r8g8b8, scene.side);
  const Image mask = makeImage(PIXMAN_a8, scene.side);
  const Image target = makeImage(PIXMAN_x8r8g8b8, scene.shownSide);
  fill(source, scene, false);
  fill(mask, scene, true);
  scale(source, scene);
  scale(mask, scene);
  const std::size_t count =
      static_cast<std::size_t>(scene.shownSide) * static_cast<std::size_t>(scene.shownSide);
  std::fill_n(pixman_image_get_data(target.get()), count, kBackground);
  const auto copy = [&] {
    pixman_image_composite32(PIXMAN_OP_OVER, source.get(), mask.get(), target.get(), 0, 0, 0, 0, 0, 0,
                             scene.shownSide, scene.shownSide);
  };
  copy();
  if (!isAsExpected(target, scene)) state.SkipWithError("a wrong copy");
  for (auto _ : state) {
    copy();
    benchmark::ClobberMemory();
  }
}

bool addAll() {
  for (const CopyScene& scene : copyScenes()) {
    benchmark::RegisterBenchmark(scene.benchmark("pixman, with a mask").c_str(), &copyByPixman, scene);
  }
  return true;
}
const bool added = addAll();

}  // namespace
}  // namespace tessaly::bench
