// The same copies by QPainter: a pixmap whose see-through pixels are a mask, made beforehand, on an image.
// Nearest pixels where it is scaled, as Qt does by default.

#include <benchmark/benchmark.h>

#include <QBitmap>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <cstring>

#include "bench/CopyScenes.h"
#include "bench/peers/QtApplication.h"

namespace tessaly::bench {
namespace {

QPixmap maskedPixmap(const CopyScene& scene) {
  QImage image(scene.side, scene.side, QImage::Format_RGB32);
  for (int y = 0; y < scene.side; ++y) {
    std::memcpy(image.scanLine(y), scene.pixels.data() + y * scene.side,
                static_cast<std::size_t>(scene.side) * sizeof(std::uint32_t));
  }
  for (int y = 0; y < scene.side; ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < scene.side; ++x) row[x] |= 0xFF000000U;
  }
  QPixmap pixmap = QPixmap::fromImage(image);
  pixmap.setMask(pixmap.createMaskFromColor(QColor::fromRgb(kKey)));
  return pixmap;
}

bool isAsExpected(const QImage& image, const CopyScene& scene) {
  const std::vector<std::uint32_t> expected = expectedCopy(scene);
  for (int y = 0; y < scene.shownSide; ++y) {
    for (int x = 0; x < scene.shownSide; ++x) {
      if ((image.pixel(x, y) & 0xFFFFFFU) != expected[static_cast<std::size_t>(y * scene.shownSide + x)])
        return false;
    }
  }
  return true;
}

void copyByPainter(benchmark::State& state, const CopyScene& scene) {
  const QtApplication application;
  const QPixmap pixmap = maskedPixmap(scene);
  QImage target(scene.shownSide, scene.shownSide, QImage::Format_RGB32);
  target.fill(kBackground);
  QPainter painter(&target);
  const QRect shown(0, 0, scene.shownSide, scene.shownSide);
  painter.drawPixmap(shown, pixmap);
  if (!isAsExpected(target, scene)) state.SkipWithError("a wrong copy");
  for (auto _ : state) {
    painter.drawPixmap(shown, pixmap);
    benchmark::ClobberMemory();
  }
}

bool addAll() {
  for (const CopyScene& scene : copyScenes()) {
    benchmark::RegisterBenchmark(scene.benchmark("QPainter, a masked pixmap").c_str(), &copyByPainter, scene);
  }
  return true;
}
const bool added = addAll();

}  // namespace
}  // namespace tessaly::bench
