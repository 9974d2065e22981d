#include <array>

#include "tessaly/platform/pictures/ByteView.h"
#include "tessaly/platform/pictures/PictureFile.h"

namespace tessaly::platform {
namespace {

constexpr std::size_t kLengthAndType = 8;
constexpr std::size_t kChecksum = 4;
constexpr std::size_t kHeaderLength = 13;

/// Chunks that a decoder must know have a capital letter in front; of the others one has a part in the
/// pixels.
bool makesPixels(std::string_view type) { return type.front() < 'a' || type == "tRNS"; }

std::string_view typeOf(std::string_view chunk) { return chunk.substr(4, 4); }

/// The format's checksum of one byte; of more, one goes into the next.
constexpr std::uint32_t checksumOfByte(std::uint32_t byte) {
  for (int bit = 0; bit < 8; ++bit) byte = byte >> 1U ^ (0xEDB88320U & (0U - (byte & 1U)));
  return byte;
}

constexpr std::array<std::uint32_t, 256> kChecksums = [] {
  std::array<std::uint32_t, 256> sums{};
  for (std::uint32_t byte = 0; byte < sums.size(); ++byte) sums[byte] = checksumOfByte(byte);
  return sums;
}();

std::uint32_t checksum(std::string_view bytes) {
  std::uint32_t sum = ~0U;
  for (const char byte : bytes)
    sum = sum >> 8U ^ kChecksums[(sum ^ static_cast<unsigned char>(byte)) & 0xFFU];
  return ~sum;
}

/// Some decoders do not look at it.
bool isSound(std::string_view chunk) {
  const std::size_t end = chunk.size() - kChecksum;
  return checksum(chunk.substr(4, end - 4)) == ByteView(chunk).numberHighFirst(end);
}

/// The chunk that begins here, with all that belongs to it; empty where it is cut off, or damaged and needed.
std::string_view chunkAt(const ByteView& file, std::size_t at) {
  const std::size_t length = file.numberHighFirst(at);
  const std::string_view chunk = file.part(at, kLengthAndType + length + kChecksum);
  return chunk.empty() || (makesPixels(typeOf(chunk)) && !isSound(chunk)) ? std::string_view() : chunk;
}

}  // namespace

std::optional<PictureFile> pngPicture(std::string_view bytes) {
  const ByteView file(bytes);
  const ByteView header(chunkAt(file, kPngMark.size()));
  if (header.size() != kLengthAndType + kHeaderLength + kChecksum || header.part(4, 4) != "IHDR") return {};
  const std::int64_t width = header.numberHighFirst(8);
  const std::int64_t height = header.numberHighFirst(12);
  if (!isPictureSize(width, height)) return {};
  PictureFile picture{PictureFormat::Png, std::string(kPngMark), static_cast<Long>(width),
                      static_cast<Long>(height)};
  for (std::size_t at = kPngMark.size();;) {
    const std::string_view chunk = chunkAt(file, at);
    if (chunk.empty()) return {};
    if (makesPixels(typeOf(chunk))) picture.bytes += chunk;
    if (typeOf(chunk) == "IEND") return picture;
    at += chunk.size();
  }
}

}  // namespace tessaly::platform
