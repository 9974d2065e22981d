#include "tests/support/pictures/PngBytes.h"

#include <algorithm>

#include "tests/support/pictures/Bytes.h"

namespace tessaly::tests {
namespace {

unsigned samplesOf(PngColours colours) {
  switch (colours) {
    case PngColours::GreyAlpha:
      return 2;
    case PngColours::Rgb:
      return 3;
    case PngColours::Rgba:
      return 4;
    default:
      return 1;
  }
}

std::uint32_t checksum(const std::string& bytes) {
  std::uint32_t sum = ~0U;
  for (const char byte : bytes) {
    sum ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = (sum >> 1U) ^ (0xEDB88320U & (0U - (sum & 1U)));
  }
  return ~sum;
}

std::uint32_t streamChecksum(const std::string& bytes) {
  std::uint32_t low = 1;
  std::uint32_t high = 0;
  for (const char byte : bytes) {
    low = (low + static_cast<unsigned char>(byte)) % 65521;
    high = (high + low) % 65521;
  }
  return high << 16U | low;
}

/// Which pixels one pass of an interlaced picture has.
struct Pass {
  std::size_t x, y, stepX, stepY;
};

constexpr Pass kPasses[] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                            {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
constexpr Pass kWhole{0, 0, 1, 1};

void addPass(std::string& stream, const PngBytes& png, const Pass& pass) {
  for (std::size_t y = pass.y; y < png.rows.size(); y += pass.stepY) {
    BitRow row(png.depth * samplesOf(png.colours));
    for (std::size_t x = pass.x; x < png.rows[y].size(); x += pass.stepX) row.add(png.rows[y][x]);
    // Each row that has pixels begins with the number of its filter, 0 for none.
    if (!row.get().empty()) stream += '\0' + row.get();
  }
}

}  // namespace

std::string pngChunk(const std::string& type, const std::string& content) {
  return Bytes()
      .numberHighFirst(static_cast<std::uint32_t>(content.size()))
      .text(type + content)
      .numberHighFirst(checksum(type + content))
      .get();
}

std::string unpackedStream(const std::string& bytes) {
  constexpr std::size_t kMostInBlock = 65535;
  Bytes stream;
  stream.byte(0x78).byte(0x01);
  for (std::size_t i = 0; i == 0 || i < bytes.size(); i += kMostInBlock) {
    const std::string block = bytes.substr(i, kMostInBlock);
    const auto size = static_cast<std::uint32_t>(block.size());
    stream.byte(i + kMostInBlock >= bytes.size() ? 1 : 0).word(size).word(~size & 0xFFFFU).text(block);
  }
  return stream.numberHighFirst(streamChecksum(bytes)).get();
}

std::string PngBytes::file() const {
  Bytes header;
  header.numberHighFirst(width != 0 ? width : static_cast<std::uint32_t>(rows.empty() ? 0 : rows[0].size()));
  header.numberHighFirst(height != 0 ? height : static_cast<std::uint32_t>(rows.size()));
  header.byte(depth).byte(static_cast<std::uint32_t>(colours)).byte(0).byte(0).byte(isInterlaced ? 1 : 0);
  std::string stream;
  if (isInterlaced) {
    for (const Pass& pass : kPasses) addPass(stream, *this, pass);
  } else {
    addPass(stream, *this, kWhole);
  }
  std::string file = "\x89PNG\r\n\x1A\n" + pngChunk("IHDR", header.get()) + more;
  if (!palette.empty()) file += pngChunk("PLTE", palette);
  if (!transparency.empty()) file += pngChunk("tRNS", transparency);
  return file + pngChunk("IDAT", unpackedStream(stream)) + pngChunk("IEND", "");
}

}  // namespace tessaly::tests
