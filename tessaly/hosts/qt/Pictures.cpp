#include "tessaly/hosts/qt/Pictures.h"

#include <QtGlobal>
#include <algorithm>
#include <utility>
#include <vector>

#include "tessaly/base/RuntimeError.h"

namespace tessaly::qt {
namespace {

/// The nearest pixel, since a see-through colour must stay the very one that it is.
QImage inLogicalPixels(const QImage& image) {
  if (qFuzzyCompare(image.devicePixelRatio(), 1)) return image;
  return image.scaled(image.deviceIndependentSize().toSize().expandedTo({1, 1}), Qt::IgnoreAspectRatio,
                      Qt::FastTransformation);
}

PictureReference pictureOf(const QImage& image) {
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height()));
  for (int y = 0; y < image.height(); ++y) {
    const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    pixels.insert(pixels.end(), row, row + image.width());
  }
  return std::make_shared<const Picture>(PixelSize{image.width(), image.height()}, std::move(pixels));
}

}  // namespace

PictureReference toPicture(const QImage& image) {
  if (image.isNull()) return std::make_shared<const Picture>();
  const QImage whole = inLogicalPixels(image);
  // Where each pixel covers wholly or not at all, as in most icons, colours times cover are the colours.
  if (whole.format() == QImage::Format_ARGB32_Premultiplied) {
    if (auto picture = pictureOf(whole); picture->isCutOut()) return picture;
  }
  const QImage plain = whole.convertToFormat(QImage::Format_ARGB32);
  if (plain.isNull()) throw RuntimeError(RuntimeError::OutOfMemory);
  return pictureOf(plain);
}

PictureReference toPicture(const QPixmap& pixmap) { return toPicture(pixmap.toImage()); }

QImage toImage(const PictureReference& picture) {
  if (!picture || picture->isEmpty()) return {};
  const auto [width, height] = picture->size();
  QImage image(width, height, picture->isOpaque() ? QImage::Format_RGB32 : QImage::Format_ARGB32);
  if (image.isNull()) throw RuntimeError(RuntimeError::OutOfMemory);
  auto pixel = picture->pixels().begin();
  for (int y = 0; y < height; ++y, pixel += width) {
    std::copy_n(pixel, width, reinterpret_cast<QRgb*>(image.scanLine(y)));
  }
  return image;
}

QPixmap toPixmap(const PictureReference& picture) { return QPixmap::fromImage(toImage(picture)); }

}  // namespace tessaly::qt
