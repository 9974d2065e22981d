// The copy of a picture with a see-through colour, between surfaces of the library, beside what can't be
// outrun: the same bytes by memcpy, and for an icon its rows.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>

#include "bench/CopyScenes.h"
#include "tessaly/platform/Desktop.h"

namespace tessaly::bench {
namespace {

using platform::DeviceContext;
using platform::Drawing;
using platform::PixelView;

std::size_t sizeOf(const PixelView& view) {
  return static_cast<std::size_t>(view.width) * static_cast<std::size_t>(view.height);
}

/// A scene's picture on one surface, and another one to copy it to.
class Surfaces {
 public:
  explicit Surfaces(const CopyScene& scene)
      : drawing_(*platform::desktop().drawing),
        source_(drawing_.createSurface(scene.side, scene.side)),
        target_(drawing_.createSurface(scene.shownSide, scene.shownSide)) {
    std::copy(scene.pixels.begin(), scene.pixels.end(), drawing_.pixels(source_).pixels);
    clear();
  }
  Surfaces(const Surfaces&) = delete;
  Surfaces& operator=(const Surfaces&) = delete;
  ~Surfaces() {
    drawing_.deleteSurface(source_);
    drawing_.deleteSurface(target_);
  }

  void clear() {
    const PixelView view = target();
    std::fill_n(view.pixels, sizeOf(view), kBackground);
  }

  bool copy(const CopyScene& scene) {
    return drawing_.TransparentBlt(target_, 0, 0, scene.shownSide, scene.shownSide, source_, 0, 0, scene.side,
                                   scene.side, static_cast<Long>(kKey));
  }

  PixelView source() { return drawing_.pixels(source_); }
  PixelView target() { return drawing_.pixels(target_); }

 private:
  Drawing& drawing_;
  DeviceContext source_;
  DeviceContext target_;
};

bool isAsExpected(Surfaces& surfaces, const CopyScene& scene) {
  const std::vector<std::uint32_t> expected = expectedCopy(scene);
  const PixelView view = surfaces.target();
  return std::equal(expected.begin(), expected.end(), view.pixels, view.pixels + sizeOf(view));
}

void copyByKey(benchmark::State& state, const CopyScene& scene) {
  Surfaces surfaces(scene);
  if (!surfaces.copy(scene) || !isAsExpected(surfaces, scene)) state.SkipWithError("a wrong copy");
  for (auto _ : state) {
    surfaces.copy(scene);
    benchmark::ClobberMemory();
  }
}

/// As many bytes as the target has, all at once.
void copyAll(benchmark::State& state, const CopyScene& scene) {
  std::vector<std::uint32_t> source(static_cast<std::size_t>(scene.shownSide) *
                                    static_cast<std::size_t>(scene.shownSide));
  Surfaces surfaces(scene);
  const PixelView target = surfaces.target();
  for (auto _ : state) {
    std::memcpy(target.pixels, source.data(), source.size() * sizeof(std::uint32_t));
    benchmark::ClobberMemory();
  }
}

void copyRows(benchmark::State& state, const CopyScene& scene) {
  Surfaces surfaces(scene);
  const PixelView source = surfaces.source();
  const PixelView target = surfaces.target();
  const auto width = static_cast<std::size_t>(source.width);
  for (auto _ : state) {
    for (std::size_t row = 0; row < static_cast<std::size_t>(source.height); ++row) {
      std::memcpy(target.pixels + row * width, source.pixels + row * width, width * sizeof(std::uint32_t));
    }
    benchmark::ClobberMemory();
  }
}

bool addAll() {
  for (const CopyScene& scene : copyScenes()) {
    const bool byRows = scene.name == kIcon;
    const std::string limit = byRows ? "limit: its rows by memcpy" : "limit: as many bytes by memcpy";
    benchmark::RegisterBenchmark(scene.benchmark(limit).c_str(), byRows ? &copyRows : &copyAll, scene);
    benchmark::RegisterBenchmark(scene.benchmark("Tessaly").c_str(), &copyByKey, scene);
  }
  return true;
}
const bool added = addAll();

}  // namespace
}  // namespace tessaly::bench
