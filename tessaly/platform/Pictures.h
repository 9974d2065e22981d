#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// A picture's pixels from the top left on, row by row: blue in the low byte, then green, then red, then how
/// much it covers (255 wholly, 0 not at all); the colours are not multiplied with that. What is decoded has 0
/// for a pixel that covers nothing.
struct PicturePixels {
  Long width = 0;
  Long height = 0;
  std::vector<std::uint32_t> pixels;

  bool operator==(const PicturePixels&) const = default;
};

/// The longest side and the most pixels of a picture that is decoded.
inline constexpr Long kLongestPictureSide = 32767;
inline constexpr std::int64_t kMostPicturePixels = std::int64_t{1} << 25;

/// Picture files, by the platform's own decoders. No call throws but for want of memory; any thread may call.
struct Pictures {
  virtual ~Pictures() = default;

  /// The picture that a PNG, BMP, GIF, JPEG or ICO file shows: of a GIF the first frame at its place on the
  /// screen, of an icon the largest picture and of equals the one with most colours. The format is told by
  /// the first bytes. Nothing for any other format, for bytes that are cut off or put together wrongly, and
  /// for a picture without pixels or beyond the limits; one beyond them costs no memory.
  virtual std::optional<PicturePixels> decode(std::string_view bytes) = 0;

  /// The picture as a PNG file, from which `decode` gives the same pixels but that one that covers nothing is
  /// 0; empty where it fails, and for a picture without pixels, beyond the limits, or with other than its
  /// pixels.
  virtual std::string encodePng(const PicturePixels& picture) = 0;
};

}  // namespace tessaly::platform
