// Any bytes as a picture: a picture within the limits or none, and what is one comes back from its PNG.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "tessaly/platform/Desktop.h"

namespace {

using namespace tessaly;
using namespace tessaly::platform;

/// Larger ones take the fuzzer's time, and show nothing more.
constexpr std::size_t kMostPixelsToCompare = 4096;

void require(bool condition) {
  if (!condition) std::abort();
}

std::uint32_t numberAt(std::string_view bytes, std::size_t at) {
  std::uint32_t number = 0;
  for (const char byte : bytes.substr(at, 4)) number = number << 8U | static_cast<unsigned char>(byte);
  return number;
}

std::uint32_t checksum(std::string_view bytes) {
  std::uint32_t sum = ~0U;
  for (const char byte : bytes) {
    sum ^= static_cast<unsigned char>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = sum >> 1U ^ (0xEDB88320U & (0U - (sum & 1U)));
  }
  return ~sum;
}

/// A PNG whose chunks have their right checksums, which no fuzzer would find.
std::string withChecksums(std::string png) {
  constexpr std::size_t kMark = 8;
  constexpr std::size_t kBeside = 12;
  for (std::size_t at = kMark; at + kBeside <= png.size();) {
    const std::size_t length = numberAt(png, at);
    if (length > png.size() - at - kBeside) break;
    const std::uint32_t sum = checksum(std::string_view(png).substr(at + 4, 4 + length));
    for (unsigned i = 0; i < 4; ++i) png[at + 8 + length + i] = static_cast<char>(sum >> (24 - 8 * i));
    at += kBeside + length;
  }
  return png;
}

void requireWhole(const PicturePixels& picture) {
  require(picture.width > 0 && picture.width <= kLongestPictureSide);
  require(picture.height > 0 && picture.height <= kLongestPictureSide);
  const std::int64_t count = std::int64_t{picture.width} * picture.height;
  require(count <= kMostPicturePixels && picture.pixels.size() == static_cast<std::size_t>(count));
}

void show(Pictures& pictures, std::string_view bytes) {
  const auto picture = pictures.decode(bytes);
  if (!picture) return;
  requireWhole(*picture);
  if (picture->pixels.size() > kMostPixelsToCompare) return;
  require(pictures.decode(pictures.encodePng(*picture)) == picture);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Pictures& pictures = *desktop().pictures;
  const std::string bytes(data, data + size);
  show(pictures, bytes);
  if (bytes.starts_with("\x89PNG")) show(pictures, withChecksums(bytes));
  return 0;
}
