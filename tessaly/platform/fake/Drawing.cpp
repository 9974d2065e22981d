#include "tessaly/platform/fake/Drawing.h"

#include <algorithm>
#include <utility>

namespace tessaly::platform::fake {
namespace {

/// The brush that every surface comes with.
constexpr DrawingObject kWhiteBrush = 1;
constexpr std::uint32_t kWhite = 0xFFFFFF;

std::uint32_t pixelOf(Long colour) {
  const auto parts = static_cast<std::uint32_t>(colour);
  const std::uint32_t red = parts % 256;
  const std::uint32_t green = parts / 256 % 256;
  const std::uint32_t blue = parts / 65536 % 256;
  return red * 65536 + green * 256 + blue;
}

/// From the first to before the second; the other way round it goes from behind the second to the first.
bool isBetween(std::int64_t place, std::int64_t first, std::int64_t second) {
  return first <= second ? first <= place && place < second : second < place && place <= first;
}

}  // namespace

bool Drawing::fails(const char* call) {
  calls_.emplace_back(call);
  return failing_.contains(call);
}

Drawing::Surface* Drawing::find(DeviceContext surface) {
  const auto found = surfaces_.find(surface);
  return found != surfaces_.end() ? &found->second : nullptr;
}

bool Drawing::isBrush(DrawingObject object) const {
  return object == kWhiteBrush || brushes_.contains(object);
}

bool Drawing::isSelected(DrawingObject object) const {
  return std::any_of(surfaces_.begin(), surfaces_.end(),
                     [=](const auto& surface) { return surface.second.brush == object; });
}

DeviceContext Drawing::createSurface(Long width, Long height) {
  if (fails(__func__) || !isSurfaceSize(width, height)) return 0;
  const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  surfaces_[++last_] = {width, height, std::vector<std::uint32_t>(count), kWhiteBrush};
  return last_;
}

void Drawing::deleteSurface(DeviceContext surface) {
  calls_.emplace_back(__func__);
  surfaces_.erase(surface);
}

PixelView Drawing::pixels(DeviceContext surface) {
  Surface* const found = find(surface);
  return found ? PixelView{found->pixels.data(), found->width, found->height} : PixelView();
}

bool Drawing::TransparentBlt(DeviceContext target, Long x, Long y, Long width, Long height,
                             DeviceContext source, Long sourceX, Long sourceY, Long sourceWidth,
                             Long sourceHeight, Long key) {
  Surface* const to = find(target);
  Surface* const from = find(source);
  if (fails(__func__) || !to || !from) return false;
  if (width < 1 || height < 1 || sourceWidth < 1 || sourceHeight < 1) return false;
  const auto lastX = std::int64_t{sourceX} + sourceWidth - 1;
  const auto lastY = std::int64_t{sourceY} + sourceHeight - 1;
  if (!from->holds(sourceX, sourceY) || !from->holds(lastX, lastY)) return false;
  // Taken before anything changes, since both may be one surface.
  Surface before = *from;
  for (std::int64_t row = 0; row < to->height; ++row) {
    for (std::int64_t column = 0; column < to->width; ++column) {
      const std::int64_t right = column - x;
      const std::int64_t down = row - y;
      if (right < 0 || right >= width || down < 0 || down >= height) continue;
      const std::uint32_t pixel =
          before.at(sourceX + right * sourceWidth / width, sourceY + down * sourceHeight / height) %
          0x1000000;
      if (pixel != pixelOf(key)) to->at(column, row) = pixel;
    }
  }
  return true;
}

DrawingObject Drawing::CreateSolidBrush(Long colour) {
  if (fails(__func__)) return 0;
  brushes_[++last_] = pixelOf(colour);
  return last_;
}

DrawingObject Drawing::SelectObject(DeviceContext surface, DrawingObject object) {
  Surface* const found = find(surface);
  if (fails(__func__) || !found || !isBrush(object)) return 0;
  return std::exchange(found->brush, object);
}

Long Drawing::FillRect(DeviceContext surface, const PixelArea& area, DrawingObject brush) {
  Surface* const found = find(surface);
  if (fails(__func__) || !found || !isBrush(brush)) return 0;
  const std::uint32_t pixel = brush == kWhiteBrush ? kWhite : brushes_[brush];
  for (std::int64_t y = 0; y < found->height; ++y) {
    for (std::int64_t x = 0; x < found->width; ++x) {
      if (isBetween(x, area.left, area.right) && isBetween(y, area.top, area.bottom)) found->at(x, y) = pixel;
    }
  }
  return 1;
}

bool Drawing::DeleteObject(DrawingObject object) {
  if (fails(__func__)) return false;
  if (object == kWhiteBrush) return true;
  return !isSelected(object) && brushes_.erase(object) != 0;
}

}  // namespace tessaly::platform::fake
