#include "tessaly/forms/Surface.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/Cover.h"
#include "tessaly/platform/Desktop.h"

namespace tessaly {
namespace {

constexpr std::uint32_t kColour = 0xFFFFFF;

/// One part of a colour over another, to the nearest.
std::uint32_t blended(std::uint32_t over, std::uint32_t under, std::uint32_t covered) {
  return (over * covered + under * (255 - covered) + 127) / 255;
}

std::uint32_t over(std::uint32_t pixel, std::uint32_t under) {
  const std::uint32_t covered = pixel >> 24;
  std::uint32_t result = 0;
  for (const unsigned shift : {0U, 8U, 16U}) {
    result |= blended((pixel >> shift) & 0xFFU, (under >> shift) & 0xFFU, covered) << shift;
  }
  return result;
}

/// Row by row, each over a background of one colour.
void paintRow(std::span<const std::uint32_t> from, std::uint32_t* to, const Picture& picture,
              std::uint32_t background) {
  if (picture.isOpaque()) {
    std::transform(from.begin(), from.end(), to, [](std::uint32_t pixel) { return pixel & kColour; });
  } else if (picture.isCutOut()) {
    std::transform(from.begin(), from.end(), to,
                   [background](std::uint32_t pixel) { return pixel != 0 ? pixel & kColour : background; });
  } else {
    std::transform(from.begin(), from.end(), to,
                   [background](std::uint32_t pixel) { return over(pixel, background); });
  }
}

}  // namespace

std::size_t pixelCount(PixelSize size) {
  const std::int64_t count = std::int64_t{size.width} * size.height;
  if (count > platform::kMostSurfacePixels) throw RuntimeError(RuntimeError::OutOfMemory);
  return static_cast<std::size_t>(count);
}

Surface::~Surface() {
  if (context_ != 0) drawing_->deleteSurface(context_);
}

bool Surface::resize(PixelSize size) {
  if (size == size_) return false;
  platform::Drawing* const drawing = platform::desktop().drawing;
  platform::DeviceContext made = 0;
  if (pixelCount(size) > 0) {
    made = drawing->createSurface(size.width, size.height);
    if (made == 0) throw RuntimeError(RuntimeError::OutOfMemory);
  }
  if (context_ != 0) drawing_->deleteSurface(context_);
  drawing_ = drawing;
  context_ = made;
  size_ = size;
  return true;
}

platform::PixelView Surface::pixels() const {
  return context_ != 0 ? drawing_->pixels(context_) : platform::PixelView{};
}

void Surface::fill(std::uint32_t pixel) const {
  const platform::PixelView view = pixels();
  std::fill_n(view.pixels, pixelCount({view.width, view.height}), pixel);
}

void Surface::paint(const Picture& picture, std::uint32_t background) const {
  if (picture.size() != size_) fill(background);
  const platform::PixelView view = pixels();
  const auto length = static_cast<std::size_t>(picture.size().width);
  auto width = static_cast<std::size_t>(std::min(view.width, picture.size().width));
  auto height = static_cast<std::size_t>(std::min(view.height, picture.size().height));
  // Rows without gaps on either side are one.
  if (view.width == picture.size().width) width *= std::exchange(height, std::min<std::size_t>(height, 1));
  for (std::size_t row = 0; row < height; ++row) {
    paintRow(picture.pixels().subspan(row * length, width),
             view.pixels + row * static_cast<std::size_t>(view.width), picture, background);
  }
}

PictureReference Surface::picture() const {
  const platform::PixelView view = pixels();
  if (view.pixels == nullptr) return std::make_shared<const Picture>();
  std::vector<std::uint32_t> copy(view.pixels, view.pixels + pixelCount(size_));
  for (std::uint32_t& pixel : copy) pixel |= kCovers;
  return std::make_shared<const Picture>(size_, std::move(copy));
}

}  // namespace tessaly
