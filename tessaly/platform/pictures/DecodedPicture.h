#pragma once

#include <utility>

#include "tessaly/platform/pictures/PictureFile.h"

namespace tessaly::platform {

/// What the decoder gave of the file's picture becomes the picture that the original shows: a frame at its
/// place on the screen, an icon without what its mask hides, and 0 for what covers nothing. Nothing where it
/// is not of the size that the file has told.
std::optional<PicturePixels> decodedPicture(const PictureFile& file, PicturePixels pixels);

/// The picture that a file of any of the formats shows, by a decoder that takes a `PictureFile` and gives its
/// pixels, or nothing.
template <class Decoder>
std::optional<PicturePixels> decodedBy(Decoder decoder, std::string_view bytes) {
  const std::optional<PictureFile> file = pictureFile(bytes);
  std::optional<PicturePixels> pixels = file ? decoder(*file) : std::nullopt;
  return pixels ? decodedPicture(*file, std::move(*pixels)) : std::nullopt;
}

/// Whether the picture has pixels, as many as its size says, and could be decoded again.
inline bool isWhole(const PicturePixels& picture) {
  return isPictureSize(picture.width, picture.height) &&
         picture.pixels.size() ==
             static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
}

}  // namespace tessaly::platform
