#include "tessaly/platform/pictures/DecodedPicture.h"

#include <algorithm>

namespace tessaly::platform {
namespace {

constexpr std::uint32_t kCover = 0xFF000000;

bool coversNothing(std::uint32_t pixel) { return (pixel & kCover) == 0; }

void applyMask(PicturePixels& picture, const std::string& mask) {
  const std::size_t rowSize = (static_cast<std::size_t>(picture.width) + 31) / 32 * 4;
  auto pixel = picture.pixels.begin();
  for (Long y = picture.height - 1; y >= 0; --y) {
    const std::size_t row = static_cast<std::size_t>(y) * rowSize;
    for (std::size_t x = 0; x < static_cast<std::size_t>(picture.width); ++x, ++pixel) {
      const auto bits = static_cast<unsigned char>(mask[row + x / 8]);
      const bool isHidden = (bits >> (7 - x % 8) & 1U) != 0;
      *pixel = isHidden ? 0 : *pixel | kCover;
    }
  }
}

bool isMasked(const PictureFile& file, const PicturePixels& picture) {
  if (file.mask.empty()) return false;
  return !file.isMaskSpare || std::all_of(picture.pixels.begin(), picture.pixels.end(), coversNothing);
}

PicturePixels placed(const PicturePixels& frame, const PictureFile::Place& place) {
  PicturePixels screen{place.width, place.height, {}};
  screen.pixels.resize(static_cast<std::size_t>(place.width) * static_cast<std::size_t>(place.height));
  const Long columns = std::min(frame.width, place.width - place.x);
  const Long rows = std::min(frame.height, place.height - place.y);
  for (Long y = 0; columns > 0 && y < rows; ++y) {
    std::copy_n(frame.pixels.begin() + std::ptrdiff_t{y} * frame.width, columns,
                screen.pixels.begin() + std::ptrdiff_t{place.y + y} * place.width + place.x);
  }
  return screen;
}

bool standsAlone(const PictureFile& file) {
  const auto& [x, y, width, height] = file.place;
  return width == 0 || (x == 0 && y == 0 && width == file.width && height == file.height);
}

}  // namespace

std::optional<PicturePixels> decodedPicture(const PictureFile& file, PicturePixels pixels) {
  if (pixels.width != file.width || pixels.height != file.height) return {};
  if (isMasked(file, pixels)) applyMask(pixels, file.mask);
  std::replace_if(pixels.pixels.begin(), pixels.pixels.end(), coversNothing, 0U);
  if (standsAlone(file)) return pixels;
  return placed(pixels, file.place);
}

}  // namespace tessaly::platform
