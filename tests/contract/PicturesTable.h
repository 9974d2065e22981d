#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tessaly/platform/Pictures.h"

namespace tessaly::tests {

/// One file and the picture that every body must see in it.
struct PictureRow {
  std::string name;
  std::string bytes;
  Long width = 0;
  /// As `PicturePixels` has them; none where the file is no picture.
  std::vector<std::uint32_t> pixels;
  /// How far each part of a colour may be off.
  int tolerance = 0;
};

/// Sound files of each format.
std::vector<PictureRow> pngPictures();
std::vector<PictureRow> bmpPictures();
std::vector<PictureRow> gifPictures();
std::vector<PictureRow> jpegPictures();
std::vector<PictureRow> iconPictures();

/// Files that are no pictures, or not put together as they should be.
std::vector<PictureRow> malformedPictures();

/// Files that say of themselves that they are larger than any picture.
std::vector<PictureRow> hugePictures();

/// What stands in a file beside these tests.
std::string pictureBytes(const std::string& name);

/// Pictures of numbers out of a palette, and of plain pixels.
using Rows = std::vector<std::vector<std::uint32_t>>;
using WideRows = std::vector<std::vector<std::uint64_t>>;

}  // namespace tessaly::tests
