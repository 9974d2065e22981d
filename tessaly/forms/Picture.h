#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"
#include "tessaly/forms/Geometry.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

/// A picture that nobody changes any more, shared by all who hold a `PictureReference` to it. An empty one is
/// an object without an image. Any thread may read it.
class TESSALY_DESKTOP_API Picture {
 public:
  /// An empty picture.
  Picture() = default;

  /// A picture of pixels from the top left on, row by row: blue in the low byte, then green, then red, then
  /// how much it covers, from 0 to 255; one that covers less than half covers nothing, and is kept as 0.
  /// Error 481 where there are not as many pixels as the size says.
  Picture(PixelSize size, std::vector<std::uint32_t> pixels);

  bool isEmpty() const { return pixels_.empty(); }

  /// Whether every pixel covers wholly.
  bool isOpaque() const { return isOpaque_; }

  /// Whether every pixel covers wholly or not at all.
  bool isCutOut() const { return isCutOut_; }

  /// The natural size in pixels; 0 by 0 for an empty picture.
  PixelSize size() const { return size_; }
  std::span<const std::uint32_t> pixels() const { return pixels_; }

 private:
  PixelSize size_;
  std::vector<std::uint32_t> pixels_;
  bool isOpaque_ = true;
  bool isCutOut_ = true;
};

/// A reference to a picture, or none.
using PictureReference = std::shared_ptr<const Picture>;

/// The picture of a PNG, BMP, GIF (its first frame), JPEG or ICO file (its largest picture); for an empty
/// name an empty picture. Error 53 where the file can't be read, and 481 where it is damaged, of another
/// kind, or larger than 32767 pixels a side or 33554432 in all.
TESSALY_DESKTOP_API PictureReference LoadPicture(std::u16string_view name);

/// The same for a file's bytes; error 481 where they are none.
TESSALY_DESKTOP_API PictureReference pictureFromBytes(std::string_view bytes);

/// A picture as a PNG file, from which `pictureFromBytes` gives the same pixels; error 481 for an empty
/// picture and for one larger than that takes.
TESSALY_DESKTOP_API std::string pngOf(const Picture& picture);

}  // namespace tessaly
