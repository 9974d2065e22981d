#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tessaly/base/Types.h"
#include "tessaly/platform/pictures/ByteView.h"

/// Bitmaps as they stand in BMP files and in icons.
namespace tessaly::platform {

/// How long the header is that a BMP file has before its bitmap.
inline constexpr std::size_t kBmpFileHeader = 14;

enum class DibPacking : std::uint8_t { None = 0, Runs8 = 1, Runs4 = 2, Masks = 3 };

struct DibHeader {
  std::int64_t width = 0;
  std::int64_t height = 0;
  bool isTopDown = false;
  std::uint32_t bits = 0;
  DibPacking packing = DibPacking::None;
  /// Which bits are red, green, blue and how much a pixel covers.
  std::array<std::uint32_t, 4> masks{};
  /// How long it is, with the masks behind it.
  std::size_t size = 0;
  /// How many colours stand behind that, and how long each of them is.
  std::size_t colours = 0;
  std::size_t colourSize = 4;

  std::size_t paletteEnd() const { return size + colours * colourSize; }
  std::int64_t rowSize() const { return (width * bits + 31) / 32 * 4; }
};

/// The header at the front of these bytes; nothing where it is of no kind that is decoded.
std::optional<DibHeader> dibHeader(const ByteView& dib);

/// A file of the bitmap in its plainest form; the rows are those of `DibHeader::rowSize`.
std::string bmpFile(const DibHeader& header, const ByteView& dib, std::string_view rows);

/// Rows of one byte a pixel, from the bottom on, out of rows that are packed by runs; nothing where they are
/// cut off or leave the picture. What they leave out has the first colour.
std::optional<std::string> unpackedRuns(const ByteView& packed, const DibHeader& header);

}  // namespace tessaly::platform
