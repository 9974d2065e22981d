#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessaly::tests {

/// The kinds of PNG by the format's own numbers.
enum class PngColours : std::uint8_t { Grey = 0, Rgb = 2, Palette = 3, GreyAlpha = 4, Rgba = 6 };

/// A PNG file as it is told. A pixel is one number with its samples side by side, the first in the highest
/// bits.
struct PngBytes {
  PngColours colours = PngColours::Rgba;
  unsigned depth = 8;
  bool isInterlaced = false;
  std::vector<std::vector<std::uint64_t>> rows;
  std::string palette;
  std::string transparency;
  /// In the header instead of the rows' own where it is not 0.
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  /// Put behind the header: chunks from `pngChunk`.
  std::string more;

  std::string file() const;
};

std::string pngChunk(const std::string& type, const std::string& content);

/// A stream as PNG packs its rows, without packing them.
std::string unpackedStream(const std::string& bytes);

}  // namespace tessaly::tests
