#include "tessaly/platform/Drawing.h"

#include <algorithm>
#include <utility>

#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/linux/DrawingObjects.h"
#include "tessaly/platform/linux/KeyedBlit.h"

namespace tessaly::platform {
namespace {

bool liesWithin(const KeyedBlit::Area& area, const MemorySurface& surface) {
  return area.x >= 0 && area.y >= 0 && std::int64_t{area.x} + area.width <= surface.width &&
         std::int64_t{area.y} + area.height <= surface.height;
}

/// Sides that are in the wrong order fill what lies between them, without the first and with the last.
void order(std::int64_t& first, std::int64_t& last) {
  if (first <= last) return;
  std::swap(first, last);
  ++first;
  ++last;
}

void fill(const MemorySurface& surface, const PixelArea& area, std::uint32_t pixel) {
  std::int64_t left = area.left;
  std::int64_t right = area.right;
  std::int64_t top = area.top;
  std::int64_t bottom = area.bottom;
  order(left, right);
  order(top, bottom);
  left = std::max<std::int64_t>(left, 0);
  right = std::min<std::int64_t>(right, surface.width);
  bottom = std::min<std::int64_t>(bottom, surface.height);
  if (left >= right) return;
  for (std::int64_t y = std::max<std::int64_t>(top, 0); y < bottom; ++y) {
    std::fill_n(surface.pixels.get() + y * surface.width + left, right - left, pixel);
  }
}

class LinuxDrawing final : public Drawing {
 public:
  DeviceContext createSurface(Long width, Long height) override {
    if (!isSurfaceSize(width, height)) return 0;
    auto surface = std::make_unique<MemorySurface>(MemorySurface{width, height, nullptr, stockBrush()});
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    surface->pixels.reset(static_cast<std::uint32_t*>(std::calloc(count, sizeof(std::uint32_t))));
    return surface->pixels ? addSurface(std::move(surface)) : 0;
  }

  void deleteSurface(DeviceContext surface) override { removeSurface(surface); }

  PixelView pixels(DeviceContext surface) override {
    const MemorySurface* const found = surfaceOf(surface);
    return found ? PixelView{found->pixels.get(), found->width, found->height} : PixelView();
  }

  bool TransparentBlt(DeviceContext target, Long x, Long y, Long width, Long height, DeviceContext source,
                      Long sourceX, Long sourceY, Long sourceWidth, Long sourceHeight, Long key) override {
    MemorySurface* const to = surfaceOf(target);
    const MemorySurface* const from = surfaceOf(source);
    if (!to || !from || width < 1 || height < 1 || sourceWidth < 1 || sourceHeight < 1) return false;
    const KeyedBlit::Area area{sourceX, sourceY, sourceWidth, sourceHeight};
    if (!liesWithin(area, *from)) return false;
    KeyedBlit{*to, {x, y, width, height}, *from, area, pixelOfColour(key)}.run();
    return true;
  }

  DrawingObject CreateSolidBrush(Long colour) override { return addBrush(pixelOfColour(colour)); }

  DrawingObject SelectObject(DeviceContext surface, DrawingObject object) override {
    MemorySurface* const found = surfaceOf(surface);
    if (!found || !isBrush(object)) return 0;
    useBrush(object);
    leaveBrush(found->brush);
    return std::exchange(found->brush, object);
  }

  Long FillRect(DeviceContext surface, const PixelArea& area, DrawingObject brush) override {
    const MemorySurface* const found = surfaceOf(surface);
    if (!found || !isBrush(brush)) return 0;
    fill(*found, area, pixelOf(brush));
    return 1;
  }

  bool DeleteObject(DrawingObject object) override { return removeBrush(object); }
};

}  // namespace

Drawing& ownDrawing() {
  static LinuxDrawing drawing;
  return drawing;
}

}  // namespace tessaly::platform
