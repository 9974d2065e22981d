#include "tests/support/pictures/BmpBytes.h"

#include <algorithm>

#include "tests/support/pictures/Bytes.h"

namespace tessaly::tests {
namespace {

constexpr std::uint32_t kFileHeader = 14;
constexpr std::uint32_t kOldHeader = 12;
constexpr std::uint32_t kBitFields = 3;

/// A pixel of whole bytes has its low byte first.
std::uint64_t lowByteFirst(std::uint32_t pixel, unsigned bits) {
  switch (bits) {
    case 16:
      return (pixel & 0xFFU) << 8U | pixel >> 8U;
    case 24:
      return (pixel & 0xFFU) << 16U | (pixel & 0xFF00U) | (pixel >> 16U & 0xFFU);
    case 32:
      return std::uint64_t{pixel & 0xFFU} << 24U | (pixel & 0xFF00U) << 8U | (pixel >> 8U & 0xFF00U) |
             pixel >> 24U;
    default:
      return pixel;
  }
}

std::string rowsFromBelow(const std::vector<std::vector<std::uint32_t>>& rows, unsigned bits,
                          bool isTopDown) {
  std::vector<std::string> packed;
  for (const auto& row : rows) {
    BitRow bitRow(bits);
    for (const std::uint32_t pixel : row) bitRow.add(lowByteFirst(pixel, bits));
    packed.push_back(bitRow.get(4));
  }
  if (!isTopDown) std::reverse(packed.begin(), packed.end());
  std::string all;
  for (const std::string& row : packed) all += row;
  return all;
}

}  // namespace

std::string BmpBytes::header(std::int32_t heights) const {
  const auto ownWidth = static_cast<std::uint32_t>(rows.empty() ? 0 : rows[0].size());
  const auto shownWidth = width != 0 ? static_cast<std::uint32_t>(width) : ownWidth;
  const auto shownHeight = static_cast<std::uint32_t>(height != 0 ? height : isTopDown ? -heights : heights);
  Bytes bytes;
  bytes.number(headerSize);
  if (headerSize == kOldHeader) return bytes.word(shownWidth).word(shownHeight).word(1).word(bits).get();
  bytes.number(shownWidth).number(shownHeight).word(1).word(bits).number(compression);
  bytes.number(static_cast<std::uint32_t>(data.size())).zeros(8);
  bytes.number(static_cast<std::uint32_t>(palette.size())).number(0);
  for (const std::uint32_t mask : masks) {
    if (bytes.size() < headerSize) bytes.number(mask);
  }
  if (headerSize > bytes.size() && headerSize >= 108) bytes.text("BGRs");
  return bytes.zeros(headerSize - bytes.size()).get();
}

std::string BmpBytes::colours() const {
  Bytes bytes;
  if (headerSize == 40 && compression == kBitFields) bytes.number(masks[0]).number(masks[1]).number(masks[2]);
  for (const std::uint32_t colour : palette) {
    bytes.byte(colour).byte(colour >> 8U).byte(colour >> 16U);
    if (headerSize != kOldHeader) bytes.byte(colour >> 24U);
  }
  return bytes.get();
}

std::string BmpBytes::pixels() const { return data.empty() ? rowsFromBelow(rows, bits, isTopDown) : data; }

std::string BmpBytes::file() const {
  const std::string front = header(static_cast<std::int32_t>(rows.size())) + colours();
  const auto offset = kFileHeader + static_cast<std::uint32_t>(front.size());
  const auto size = offset + static_cast<std::uint32_t>(pixels().size());
  return Bytes().text("BM").number(size).number(0).number(offset).text(front + pixels()).get();
}

std::string BmpBytes::inIcon(const std::vector<std::vector<std::uint32_t>>& mask) const {
  return header(2 * static_cast<std::int32_t>(rows.size())) + colours() + pixels() +
         rowsFromBelow(mask, 1, false);
}

std::string iconFile(const std::vector<IconEntry>& entries) {
  Bytes directory;
  directory.word(0).word(1).word(static_cast<std::uint32_t>(entries.size()));
  auto offset = static_cast<std::uint32_t>(6 + 16 * entries.size());
  std::string contents;
  for (const IconEntry& entry : entries) {
    // 256 does not fit its byte and stands as 0.
    directory.byte(entry.width).byte(entry.height).byte(0).byte(0).word(1).word(entry.bits);
    directory.number(static_cast<std::uint32_t>(entry.content.size())).number(offset);
    offset += static_cast<std::uint32_t>(entry.content.size());
    contents += entry.content;
  }
  return directory.get() + contents;
}

}  // namespace tessaly::tests
