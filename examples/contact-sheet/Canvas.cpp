#include "examples/contact-sheet/Canvas.h"

#include <algorithm>

namespace sheet {

using tessaly::Long;

namespace {

std::size_t placeOf(tessaly::PixelPoint point, tessaly::PixelSize size) {
  return static_cast<std::size_t>(point.y) * static_cast<std::size_t>(size.width) +
         static_cast<std::size_t>(point.x);
}

}  // namespace

Canvas::Canvas(const tessaly::Picture& background)
    : size_(background.size()), pixels_(background.pixels().begin(), background.pixels().end()) {}

void Canvas::put(tessaly::PixelPoint corner, const tessaly::Picture& picture) {
  const auto [width, height] = picture.size();
  for (Long y = std::max(0, -corner.y); y < height && corner.y + y < size_.height; ++y) {
    for (Long x = std::max(0, -corner.x); x < width && corner.x + x < size_.width; ++x) {
      pixels_[placeOf({corner.x + x, corner.y + y}, size_)] =
          picture.pixels()[placeOf({x, y}, picture.size())];
    }
  }
}

}  // namespace sheet
