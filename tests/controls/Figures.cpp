#include "tests/controls/Figures.h"

#include <functional>

namespace tessaly::tests {
namespace {

constexpr std::uint32_t kCovers = 0xFF000000;

PictureReference drawn(PixelSize size, const std::function<OLE_COLOR(Long x, Long y)>& colourAt) {
  std::vector<std::uint32_t> pixels;
  for (Long y = 0; y < size.height; ++y) {
    for (Long x = 0; x < size.width; ++x) pixels.push_back(kCovers | pixelOf(colourAt(x, y)));
  }
  return std::make_shared<const Picture>(size, std::move(pixels));
}

Long share(Long place, Long length) { return length > 1 ? 40 + place * 200 / (length - 1) : 40; }

OLE_COLOR slopeAt(PixelSize size, std::uint8_t blue, Long x, Long y) {
  if (x == 0 || y == 0) return 0xFFFFFF;
  if (x == size.width - 1 || y == size.height - 1) return 0;
  return share(x, size.width) + 256 * share(y, size.height) + 65536 * blue;
}

bool isInEllipse(PixelSize size, Long x, Long y) {
  const double across = (2.0 * x + 1) / size.width - 1;
  const double down = (2.0 * y + 1) / size.height - 1;
  return across * across + down * down < 0.36;
}

}  // namespace

PictureReference plain(PixelSize size, OLE_COLOR colour) {
  return drawn(size, [=](Long, Long) { return colour; });
}

PictureReference slope(PixelSize size, std::uint8_t blue) {
  return drawn(size, [=](Long x, Long y) { return slopeAt(size, blue, x, y); });
}

PictureReference ring(PixelSize size, std::uint8_t blue, OLE_COLOR key) {
  return drawn(size,
               [=](Long x, Long y) { return isInEllipse(size, x, y) ? key : slopeAt(size, blue, x, y); });
}

PictureReference nearlyKey(OLE_COLOR key) {
  const std::vector<OLE_COLOR> columns{key,         key - 0x1, key + 0x1,     key,           key - 0x100,
                                       key + 0x100, key,       key - 0x10000, key + 0x10000, key};
  return drawn({static_cast<Long>(columns.size()), 4},
               [&](Long x, Long) { return columns[static_cast<std::size_t>(x)]; });
}

}  // namespace tessaly::tests
