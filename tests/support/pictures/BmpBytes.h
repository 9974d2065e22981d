#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tessaly::tests {

/// A BMP file as it is told. Pixels of up to 8 bits are numbers of the palette; others are 16, 24 or 32 bits
/// with blue in the low ones.
struct BmpBytes {
  unsigned bits = 24;
  bool isTopDown = false;
  std::vector<std::vector<std::uint32_t>> rows;
  /// Blue in the low byte, then green, then red.
  std::vector<std::uint32_t> palette;
  std::uint32_t headerSize = 40;
  std::uint32_t compression = 0;
  /// Red, green, blue, alpha; in the header where that is large enough, otherwise three behind it.
  std::array<std::uint32_t, 4> masks{};
  /// In the header instead of the rows' own where it is not 0.
  std::int32_t width = 0;
  std::int32_t height = 0;
  /// Instead of the rows where it is not empty.
  std::string data;

  std::string file() const;

  /// What stands in an icon: without the file's header, the height doubled, and a mask behind the pixels.
  std::string inIcon(const std::vector<std::vector<std::uint32_t>>& mask) const;

 private:
  std::string header(std::int32_t heights) const;
  std::string colours() const;
  std::string pixels() const;
};

/// One picture of an icon: a `BmpBytes::inIcon` or a whole PNG file.
struct IconEntry {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  unsigned bits = 32;
  std::string content;
};

std::string iconFile(const std::vector<IconEntry>& entries);

}  // namespace tessaly::tests
