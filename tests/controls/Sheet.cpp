#include "tests/controls/Sheet.h"

#include <algorithm>

namespace tessaly::tests {
namespace {

constexpr Long kGap = 4;
constexpr std::uint32_t kGrey = 0xFF808080;

std::size_t indexOf(PixelPoint place, Long width) {
  return static_cast<std::size_t>(place.y) * static_cast<std::size_t>(width) +
         static_cast<std::size_t>(place.x);
}

}  // namespace

PixelSize Sheet::cellSize() const {
  PixelSize size;
  for (const Cell& cell : cells_) {
    size.width = std::max(size.width, cell.picture->size().width);
    size.height = std::max(size.height, cell.picture->size().height);
  }
  return size;
}

PixelPoint Sheet::cornerOf(std::size_t cell) const {
  const PixelSize size = cellSize();
  return {kGap + static_cast<Long>(cell % columns_) * (size.width + kGap),
          kGap + static_cast<Long>(cell / columns_) * (size.height + kGap)};
}

PictureReference Sheet::picture() const {
  const PixelPoint end = cornerOf((cells_.size() + columns_ - 1) / columns_ * columns_);
  const PixelSize size{cornerOf(columns_ - 1).x + cellSize().width + kGap, end.y};
  std::vector<std::uint32_t> pixels(indexOf({0, size.height}, size.width), kGrey);
  for (std::size_t cell = 0; cell < cells_.size(); ++cell) {
    const PixelPoint corner = cornerOf(cell);
    const Picture& shown = *cells_[cell].picture;
    for (Long row = 0; row < shown.size().height; ++row) {
      const auto from = shown.pixels().begin() + static_cast<std::ptrdiff_t>(row) * shown.size().width;
      std::copy_n(
          from, shown.size().width,
          pixels.begin() + static_cast<std::ptrdiff_t>(indexOf({corner.x, corner.y + row}, size.width)));
    }
  }
  return std::make_shared<const Picture>(size, std::move(pixels));
}

std::string Sheet::nameAt(PixelPoint place) const {
  for (std::size_t cell = 0; cell < cells_.size(); ++cell) {
    const PixelPoint corner = cornerOf(cell);
    const PixelSize size = cells_[cell].picture->size();
    if (place.x >= corner.x && place.x < corner.x + size.width && place.y >= corner.y &&
        place.y < corner.y + size.height) {
      return "\"" + cells_[cell].name + "\" at " + std::to_string(place.x - corner.x) + "," +
             std::to_string(place.y - corner.y);
    }
  }
  return "between the cells";
}

}  // namespace tessaly::tests
