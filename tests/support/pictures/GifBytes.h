#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessaly::tests {

/// One picture of a GIF file.
struct GifFrame {
  std::uint32_t x = 0;
  std::uint32_t y = 0;
  /// Numbers of the palette.
  std::vector<std::vector<std::uint32_t>> rows;
  /// The number that covers nothing; none where it is below 0.
  int transparent = -1;
  bool isInterlaced = false;
  /// Whether its table of codes never starts anew.
  bool fillsTable = false;
};

/// A GIF file as it is told.
struct GifBytes {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  /// A power of two of colours with red in the highest byte of three.
  std::vector<std::uint32_t> palette;
  std::uint32_t background = 0;
  std::vector<GifFrame> frames;

  std::string file() const;
};

}  // namespace tessaly::tests
