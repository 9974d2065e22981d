// The same button drawn by QPainter as a Qt program would draw it: an image cleared, a pixmap for the picture
// and one for each overlay, with see-through pixels, made beforehand.

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <vector>

#include "bench/ButtonScene.h"
#include "bench/CopyScenes.h"
#include "bench/peers/QtApplication.h"

namespace tessaly::bench {
namespace {

struct Part {
  QPixmap pixmap;
  QPoint place;
};

QPixmap pixmapOf(const SquarePicture& square) {
  QImage image(square.side, square.side, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < square.side; ++y) {
    for (int x = 0; x < square.side; ++x) {
      const std::uint32_t pixel = square.pixels[static_cast<std::size_t>(y * square.side + x)];
      image.setPixel(x, y, pixel == kKey ? 0 : 0xFF000000U | pixel);
    }
  }
  return QPixmap::fromImage(image);
}

std::vector<Part> partsOf(const ButtonScene& scene) {
  std::vector<Part> parts = {{pixmapOf(scene.main), QPoint(0, 0)}};
  for (const Overlay& overlay : scene.overlays) {
    parts.push_back({pixmapOf(overlay.picture), QPoint(overlay.left, overlay.top)});
  }
  return parts;
}

void draw(QImage& image, const std::vector<Part>& parts) {
  image.fill(kBackground);
  QPainter painter(&image);
  for (const Part& part : parts) painter.drawPixmap(part.place, part.pixmap);
}

bool isAsExpected(const QImage& image, const ButtonScene& scene) {
  const std::vector<std::uint32_t> expected = expectedButton(scene);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if ((image.pixel(x, y) & 0xFFFFFFU) != expected[static_cast<std::size_t>(y * image.width() + x)])
        return false;
    }
  }
  return true;
}

void drawButton(benchmark::State& state) {
  const QtApplication application;
  const ButtonScene scene = buttonScene();
  const std::vector<Part> parts = partsOf(scene);
  QImage image(scene.main.side, scene.main.side, QImage::Format_RGB32);
  draw(image, parts);
  if (!isAsExpected(image, scene)) state.SkipWithError("a wrong picture");
  for (auto _ : state) {
    draw(image, parts);
    benchmark::ClobberMemory();
  }
}

const auto* const added = benchmark::RegisterBenchmark((kComposition + "/QPainter").c_str(), &drawButton);

}  // namespace
}  // namespace tessaly::bench
