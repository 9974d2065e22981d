#include "examples/showcase/window/ToolPictures.h"

#include <utility>
#include <vector>

#include "tessaly/base/RuntimeError.h"

namespace showcase {

using tessaly::Long;
using tessaly::RuntimeError;

ToolPictures::ToolPictures() : all_(tessaly::LoadPicture(u"examples/showcase/pictures/toolbar.png")) {}

tessaly::PictureReference ToolPictures::cut(Long top, Long place, Long side) const {
  const auto [width, height] = all_->size();
  const Long left = place * side;
  if (left < 0 || left + side > width || top + side > height)
    throw RuntimeError(RuntimeError::InvalidPicture);
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
  for (Long row = top; row < top + side; ++row) {
    const auto begin = all_->pixels().begin() + static_cast<std::ptrdiff_t>(row) * width + left;
    pixels.insert(pixels.end(), begin, begin + side);
  }
  return std::make_shared<const tessaly::Picture>(tessaly::PixelSize{side, side}, std::move(pixels));
}

}  // namespace showcase
