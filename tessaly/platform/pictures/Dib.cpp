#include "tessaly/platform/pictures/Dib.h"

#include <algorithm>

namespace tessaly::platform {
namespace {

constexpr std::uint32_t kOldHeader = 12;
constexpr std::uint32_t kPlainHeader = 40;
constexpr std::uint32_t kOtherHeader = 64;
constexpr std::uint32_t kMaskHeader = 56;
constexpr std::uint32_t kColourHeader = 108;
constexpr std::uint32_t kHeaders[] = {kOldHeader,   kPlainHeader,  52, kMaskHeader,
                                      kOtherHeader, kColourHeader, 124};

bool isOneOf(std::uint32_t value, std::initializer_list<std::uint32_t> values) {
  return std::find(values.begin(), values.end(), value) != values.end();
}

bool isPacked(const DibHeader& header, std::uint32_t headerSize) {
  switch (header.packing) {
    case DibPacking::None:
      return true;
    case DibPacking::Runs8:
      return header.bits == 8 && !header.isTopDown;
    case DibPacking::Runs4:
      return header.bits == 4 && !header.isTopDown;
    case DibPacking::Masks:
      return header.bits >= 16 && header.bits != 24 && headerSize != kOtherHeader;
  }
  return false;
}

DibHeader oldHeader(const ByteView& dib) {
  DibHeader header;
  header.width = dib.word(4);
  header.height = dib.word(6);
  header.bits = dib.word(10);
  header.colourSize = 3;
  return header;
}

DibHeader newHeader(const ByteView& dib) {
  DibHeader header;
  header.width = static_cast<std::int32_t>(dib.number(4));
  header.height = static_cast<std::int32_t>(dib.number(8));
  header.isTopDown = header.height < 0;
  if (header.isTopDown) header.height = -header.height;
  header.bits = dib.word(14);
  header.packing = static_cast<DibPacking>(std::min<std::uint32_t>(dib.number(16), 255));
  header.colours = dib.number(32);
  return header;
}

/// They stand in the header, in a plain one's case behind it; an old one has none for the covering.
void readMasks(DibHeader& header, const ByteView& dib, std::uint32_t headerSize) {
  if (header.packing != DibPacking::Masks) return;
  for (std::size_t i = 0; i < 3; ++i) header.masks[i] = dib.number(kPlainHeader + 4 * i);
  if (headerSize >= kMaskHeader && header.bits == 32) header.masks[3] = dib.number(kPlainHeader + 12);
  if (headerSize == kPlainHeader) header.size += 12;
}

/// Full, so that no pixel has a colour outside.
std::string palette(const DibHeader& header, const ByteView& dib) {
  std::string colours;
  if (header.bits > 8) return colours;
  const std::size_t count = std::size_t{1} << header.bits;
  for (std::size_t i = 0; i < count; ++i) {
    const bool isThere = i < header.colours;
    addNumber(colours, isThere ? dib.number(header.size + i * header.colourSize) & 0xFFFFFFU : 0);
  }
  return colours;
}

std::string headerBytes(const DibHeader& header) {
  const bool hasMasks = header.packing == DibPacking::Masks;
  const bool covers = header.masks[3] != 0;
  std::string bytes;
  addNumber(bytes, covers ? kColourHeader : kPlainHeader);
  addNumber(bytes, static_cast<std::uint32_t>(header.width));
  addNumber(bytes, static_cast<std::uint32_t>(header.isTopDown ? -header.height : header.height));
  addWord(bytes, 1);
  addWord(bytes, header.bits);
  addNumber(bytes, hasMasks ? static_cast<std::uint32_t>(DibPacking::Masks) : 0);
  bytes.resize(kPlainHeader);
  for (std::size_t i = 0; hasMasks && i < (covers ? 4U : 3U); ++i) addNumber(bytes, header.masks[i]);
  if (covers) bytes += "BGRs";
  if (covers) bytes.resize(kColourHeader);
  return bytes;
}

}  // namespace

std::optional<DibHeader> dibHeader(const ByteView& dib) {
  const std::uint32_t headerSize = dib.number(0);
  if (std::find(std::begin(kHeaders), std::end(kHeaders), headerSize) == std::end(kHeaders)) return {};
  if (!dib.has(0, headerSize)) return {};
  DibHeader header = headerSize == kOldHeader ? oldHeader(dib) : newHeader(dib);
  header.size = headerSize;
  if (!isOneOf(header.bits, {1, 4, 8, 16, 24, 32}) || !isPacked(header, headerSize)) return {};
  readMasks(header, dib, headerSize);
  if (header.bits <= 8) {
    const std::size_t most = std::size_t{1} << header.bits;
    if (header.colours == 0 || header.colours > most) header.colours = most;
  }
  return header;
}

std::string bmpFile(const DibHeader& header, const ByteView& dib, std::string_view rows) {
  const std::string front = headerBytes(header) + palette(header, dib);
  const std::size_t offset = kBmpFileHeader + front.size();
  std::string file = "BM";
  file.reserve(offset + rows.size());
  addNumber(file, static_cast<std::uint32_t>(offset + rows.size()));
  addNumber(file, 0);
  addNumber(file, static_cast<std::uint32_t>(offset));
  file += front;
  file += rows;
  return file;
}

}  // namespace tessaly::platform
