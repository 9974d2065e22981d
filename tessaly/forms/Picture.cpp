#include "tessaly/forms/Picture.h"

#include <algorithm>
#include <utility>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/Cover.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/Desktop.h"

namespace tessaly {
namespace {

/// What all pixels have in common in how they cover, and what those lack that cover at all.
struct Covering {
  std::uint32_t all = kCovers;
  std::uint32_t lacking = 0;
};

/// Pixels are either seen or not where a picture is cut out by a colour, so what is hardly there goes.
/// Without branches, so that several pixels are looked at together.
Covering clearFaint(std::vector<std::uint32_t>& pixels) {
  Covering covering;
  for (std::uint32_t& pixel : pixels) {
    const std::uint32_t seen = 0U - (pixel >> 31);
    covering.lacking |= ~pixel & seen;
    pixel &= seen;
    covering.all &= pixel;
  }
  return covering;
}

bool fits(PixelSize size, std::size_t count) {
  return size.width > 0 && size.height > 0 &&
         count / static_cast<std::size_t>(size.width) == static_cast<std::size_t>(size.height) &&
         count % static_cast<std::size_t>(size.width) == 0;
}

}  // namespace

Picture::Picture(PixelSize size, std::vector<std::uint32_t> pixels)
    : size_(size), pixels_(std::move(pixels)) {
  if (!fits(size_, pixels_.size())) throw RuntimeError(RuntimeError::InvalidPicture);
  const auto [all, lacking] = clearFaint(pixels_);
  isOpaque_ = (all & kCovers) == kCovers;
  isCutOut_ = (lacking & kCovers) == 0;
}

PictureReference LoadPicture(std::u16string_view name) {
  if (name.empty()) return std::make_shared<const Picture>();
  const auto bytes = platform::core().files->read(name);
  if (!bytes) throw RuntimeError(RuntimeError::FileNotFound);
  return pictureFromBytes(*bytes);
}

PictureReference pictureFromBytes(std::string_view bytes) {
  auto decoded = platform::desktop().pictures->decode(bytes);
  if (!decoded) throw RuntimeError(RuntimeError::InvalidPicture);
  return std::make_shared<const Picture>(PixelSize{decoded->width, decoded->height},
                                         std::move(decoded->pixels));
}

std::string pngOf(const Picture& picture) {
  const auto pixels = picture.pixels();
  std::string bytes = platform::desktop().pictures->encodePng(
      {picture.size().width, picture.size().height, {pixels.begin(), pixels.end()}});
  if (bytes.empty()) throw RuntimeError(RuntimeError::InvalidPicture);
  return bytes;
}

}  // namespace tessaly
