#include "tessaly/platform/pictures/ByteView.h"
#include "tessaly/platform/pictures/GifCodes.h"
#include "tessaly/platform/pictures/PictureFile.h"

namespace tessaly::platform {
namespace {

constexpr std::size_t kMark = 6;
constexpr std::size_t kScreen = 7;
constexpr std::size_t kDescriptor = 10;
constexpr std::uint32_t kExtension = 0x21;
constexpr std::uint32_t kImage = 0x2C;
constexpr std::uint32_t kTrailer = 0x3B;
constexpr std::uint32_t kGraphicControl = 0xF9;

std::size_t paletteSize(std::uint32_t flags) {
  return (flags & 0x80U) != 0 ? std::size_t{3} << ((flags & 7U) + 1) : 0;
}

/// The parts of a file that make its first frame.
struct FirstFrame {
  std::string_view palette;
  std::string_view control;
  std::string_view descriptor;
  std::string_view content;
};

/// Goes through a file, block by block.
class Blocks {
 public:
  explicit Blocks(std::string_view bytes) : file_(bytes) {}

  /// False where the file is cut off, or what should be a block is none.
  bool read() {
    if (!take(kMark + kScreen)) return false;
    frame.palette = file_.part(at_, paletteSize(file_.byte(10)));
    if (!take(paletteSize(file_.byte(10)))) return false;
    while (file_.byte(at_) != kTrailer) {
      if (!readBlock()) return false;
    }
    return true;
  }

  FirstFrame frame;

 private:
  bool take(std::size_t count) {
    const bool isThere = file_.has(at_, count);
    at_ += count;
    return isThere;
  }

  /// Parts of up to 255 bytes, up to an empty one.
  bool takeParts() {
    while (file_.has(at_, 1)) {
      const std::size_t count = file_.byte(at_);
      if (!take(1 + count)) return false;
      if (count == 0) return true;
    }
    return false;
  }

  bool readBlock() {
    const std::size_t start = at_;
    const std::uint32_t kind = file_.byte(at_);
    if (kind == kImage) return readImage();
    if (kind != kExtension || !take(2) || !takeParts()) return false;
    const bool isControl = file_.byte(start + 1) == kGraphicControl && file_.byte(start + 2) == 4;
    if (isControl && frame.descriptor.empty()) frame.control = file_.part(start, at_ - start);
    return true;
  }

  bool readImage() {
    const std::string_view descriptor = file_.part(at_, kDescriptor);
    if (!take(kDescriptor)) return false;
    const std::size_t start = at_;
    // Behind its palette stands how many bits its codes begin with.
    if (!take(paletteSize(ByteView(descriptor).byte(9)) + 1) || !takeParts()) return false;
    if (!frame.descriptor.empty()) return true;
    frame.descriptor = descriptor;
    frame.content = file_.part(start, at_ - start);
    return true;
  }

  ByteView file_;
  std::size_t at_ = 0;
};

std::uint32_t flagsOf(const FirstFrame& frame) { return ByteView(frame.descriptor).byte(9); }

bool hasColours(const FirstFrame& frame) {
  return !frame.palette.empty() || paletteSize(flagsOf(frame)) != 0;
}

/// Behind the frame's own palette stand its codes.
bool hasPixels(const FirstFrame& frame, std::int64_t count) {
  return holdsGifPixels(frame.content.substr(paletteSize(flagsOf(frame))), count);
}

/// A file whose screen is the frame.
std::string fileOf(const FirstFrame& frame, std::string_view screen) {
  const std::string_view size = frame.descriptor.substr(5, 4);
  std::string file = "GIF89a" + std::string(size) + screen[4];
  file += screen[5];
  file += '\0';
  file += frame.palette;
  file += frame.control;
  file += static_cast<char>(kImage);
  file += std::string(4, '\0');
  file += frame.descriptor.substr(5);
  file += frame.content;
  file += static_cast<char>(kTrailer);
  return file;
}

Long wordAt(std::string_view bytes, std::size_t at) { return static_cast<Long>(ByteView(bytes).word(at)); }

}  // namespace

std::optional<PictureFile> gifPicture(std::string_view bytes) {
  Blocks blocks(bytes);
  if (!blocks.read() || blocks.frame.descriptor.empty()) return {};
  const std::string_view screen = bytes.substr(kMark, kScreen);
  const std::string_view frame = blocks.frame.descriptor;
  const PictureFile::Place place{wordAt(frame, 1), wordAt(frame, 3), wordAt(screen, 0), wordAt(screen, 2)};
  const Long width = wordAt(frame, 5);
  const Long height = wordAt(frame, 7);
  if (!isPictureSize(width, height) || !isPictureSize(place.width, place.height)) return {};
  if (!hasColours(blocks.frame) || !hasPixels(blocks.frame, std::int64_t{width} * height)) return {};
  return PictureFile{PictureFormat::Gif, fileOf(blocks.frame, screen), width, height, place};
}

}  // namespace tessaly::platform
