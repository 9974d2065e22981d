#include "tessaly/forms/LinePixels.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace tessaly {
namespace {

/// A surface's pixels as one walks them: along the line's longer direction, and across it.
struct Walk {
  std::uint32_t* pixels;
  std::int64_t length;
  std::int64_t breadth;
  std::int64_t stepAlong;
  std::int64_t stepAcross;

  void drawAcross(std::int64_t along, std::int64_t middle, std::int64_t width, std::uint32_t pixel) const {
    std::int64_t first = middle - (width - 1) / 2;
    const std::int64_t spare = breadth - width;
    if (middle >= 0 && middle < breadth) {
      first = std::clamp(first, std::min<std::int64_t>(0, spare), std::max<std::int64_t>(0, spare));
    }
    const std::int64_t end = std::min(first + width, breadth);
    for (std::int64_t across = std::max<std::int64_t>(first, 0); across < end; ++across) {
      pixels[along * stepAlong + across * stepAcross] = pixel;
    }
  }
};

void draw(const Walk& walk, PixelPoint from, PixelPoint to, Long width, std::uint32_t pixel) {
  if (from.x > to.x) std::swap(from, to);
  const double steps = static_cast<double>(to.x) - from.x;
  const double slope = steps == 0 ? 0 : (static_cast<double>(to.y) - from.y) / steps;
  const std::int64_t end = std::min<std::int64_t>(to.x, walk.length - 1);
  for (std::int64_t along = std::max(from.x, Long{0}); along <= end; ++along) {
    const double across = from.y + static_cast<double>(along - from.x) * slope;
    walk.drawAcross(along, static_cast<std::int64_t>(std::floor(across + 0.5)), width, pixel);
  }
}

PixelPoint turned(PixelPoint point) { return {point.y, point.x}; }

}  // namespace

void drawLine(platform::PixelView pixels, PixelPoint from, PixelPoint to, Long width, std::uint32_t pixel) {
  const bool isSteep = std::abs(std::int64_t{to.y} - from.y) > std::abs(std::int64_t{to.x} - from.x);
  if (isSteep) {
    draw({pixels.pixels, pixels.height, pixels.width, pixels.width, 1}, turned(from), turned(to), width,
         pixel);
  } else {
    draw({pixels.pixels, pixels.width, pixels.height, 1, pixels.width}, from, to, width, pixel);
  }
}

}  // namespace tessaly
