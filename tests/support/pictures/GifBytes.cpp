#include "tests/support/pictures/GifBytes.h"

#include <algorithm>
#include <bit>

#include "tests/support/pictures/Bytes.h"

namespace tessaly::tests {
namespace {

/// Codes of a few bits, the first in the lowest bits of the first byte.
class Codes {
 public:
  explicit Codes(unsigned bits) : bits_(bits) {}

  unsigned bits() const { return bits_; }
  void grow() { ++bits_; }

  void add(std::uint32_t code) {
    pending_ |= code << count_;
    for (count_ += bits_; count_ >= 8; count_ -= 8, pending_ >>= 8U)
      bytes_ += static_cast<char>(pending_ & 0xFFU);
  }

  std::string get() const { return count_ > 0 ? bytes_ + static_cast<char>(pending_) : bytes_; }

 private:
  unsigned bits_;
  unsigned count_ = 0;
  std::uint32_t pending_ = 0;
  std::string bytes_;
};

/// Each pixel is a code of its own; the table starts anew before its codes would need another bit.
std::string packed(const std::vector<std::uint32_t>& pixels, unsigned bits) {
  const std::uint32_t startAnew = 1U << bits;
  Codes codes(bits + 1);
  std::uint32_t untilFull = 0;
  for (const std::uint32_t pixel : pixels) {
    if (untilFull == 0) {
      codes.add(startAnew);
      untilFull = startAnew - 2;
    }
    codes.add(pixel);
    --untilFull;
  }
  codes.add(startAnew + 1);
  return codes.get();
}

/// Each pixel is a code of its own behind one start, so that the table fills and stays full.
std::string packedOnce(const std::vector<std::uint32_t>& pixels, unsigned bits) {
  constexpr std::uint32_t kMostCodes = 4096;
  const std::uint32_t startAnew = 1U << bits;
  Codes codes(bits + 1);
  codes.add(startAnew);
  // The first pixel adds nothing to the table.
  std::uint32_t size = startAnew + 1;
  for (const std::uint32_t pixel : pixels) {
    codes.add(pixel);
    if (size < kMostCodes) ++size;
    if (size == 1U << codes.bits() && size < kMostCodes) codes.grow();
  }
  codes.add(startAnew + 1);
  return codes.get();
}

std::string inBlocks(const std::string& content) {
  std::string blocks;
  for (std::size_t i = 0; i < content.size(); i += 255) {
    const std::string block = content.substr(i, 255);
    blocks += static_cast<char>(block.size()) + block;
  }
  return blocks + '\0';
}

std::vector<std::uint32_t> inFileOrder(const GifFrame& frame) {
  std::vector<std::uint32_t> pixels;
  const auto addRows = [&](std::size_t first, std::size_t step) {
    for (std::size_t y = first; y < frame.rows.size(); y += step) {
      pixels.insert(pixels.end(), frame.rows[y].begin(), frame.rows[y].end());
    }
  };
  if (!frame.isInterlaced) {
    addRows(0, 1);
    return pixels;
  }
  addRows(0, 8);
  addRows(4, 8);
  addRows(2, 4);
  addRows(1, 2);
  return pixels;
}

std::string frameBytes(const GifFrame& frame, unsigned bits) {
  Bytes bytes;
  if (frame.transparent >= 0) {
    bytes.byte(0x21)
        .byte(0xF9)
        .byte(4)
        .byte(1)
        .word(0)
        .byte(static_cast<std::uint32_t>(frame.transparent))
        .byte(0);
  }
  bytes.byte(0x2C).word(frame.x).word(frame.y).word(static_cast<std::uint32_t>(frame.rows[0].size()));
  bytes.word(static_cast<std::uint32_t>(frame.rows.size())).byte(frame.isInterlaced ? 0x40 : 0).byte(bits);
  const auto pack = frame.fillsTable ? packedOnce : packed;
  return bytes.text(inBlocks(pack(inFileOrder(frame), bits))).get();
}

}  // namespace

std::string GifBytes::file() const {
  const auto paletteBits = static_cast<unsigned>(std::bit_width(palette.size()) - 1);
  Bytes bytes;
  bytes.text("GIF89a").word(width).word(height).byte(0x80U | (paletteBits - 1)).byte(background).byte(0);
  for (const std::uint32_t colour : palette) bytes.byte(colour >> 16U).byte(colour >> 8U).byte(colour);
  for (const GifFrame& frame : frames) bytes.text(frameBytes(frame, std::max(paletteBits, 2U)));
  return bytes.byte(0x3B).get();
}

}  // namespace tessaly::tests
