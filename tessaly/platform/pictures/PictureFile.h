#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tessaly/platform/Pictures.h"

namespace tessaly::platform {

/// Whose decoder a file is for. An icon's pictures are for those of PNG and BMP.
enum class PictureFormat : std::uint8_t { Bmp, Gif, Jpeg, Png };

/// A file of one picture, which the platform's decoder gets, with what is to be done with its pixels.
struct PictureFile {
  PictureFormat format{};

  /// Made of those parts of the original that make the picture, in their plainest form. What stands beside
  /// them (texts, profiles, thumbnails, further frames) no decoder gets to see.
  std::string bytes{};

  /// Of the picture in it, within the limits.
  Long width = 0;
  Long height = 0;

  /// Where the picture stands on a larger, clear one; all 0 where it stands alone.
  struct Place {
    Long x = 0;
    Long y = 0;
    Long width = 0;
    Long height = 0;
  } place{};

  /// An icon's mask, from the bottom row on, one bit a pixel: what is set covers nothing. A spare one counts
  /// only where no pixel tells that it covers anything.
  std::string mask{};
  bool isMaskSpare = false;
};

/// The picture that a file shows, by a look at its structure alone. Nothing where it is of no known format,
/// cut off or put together wrongly, and where the picture has no pixels or is beyond the limits.
std::optional<PictureFile> pictureFile(std::string_view bytes);

/// The same for each format.
std::optional<PictureFile> bmpPicture(std::string_view bytes);
std::optional<PictureFile> gifPicture(std::string_view bytes);
std::optional<PictureFile> iconPicture(std::string_view bytes);
std::optional<PictureFile> jpegPicture(std::string_view bytes);
std::optional<PictureFile> pngPicture(std::string_view bytes);

inline bool isPictureSize(std::int64_t width, std::int64_t height) {
  return width > 0 && height > 0 && width <= kLongestPictureSide && height <= kLongestPictureSide &&
         width * height <= kMostPicturePixels;
}

inline constexpr std::string_view kPngMark{"\x89PNG\r\n\x1A\n", 8};

}  // namespace tessaly::platform
