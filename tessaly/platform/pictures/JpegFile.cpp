#include "tessaly/platform/pictures/ByteView.h"
#include "tessaly/platform/pictures/PictureFile.h"

namespace tessaly::platform {
namespace {

/// Marks, the byte behind FF.
constexpr std::uint32_t kStart = 0xD8;
constexpr std::uint32_t kEndOfImage = 0xD9;
constexpr std::uint32_t kScan = 0xDA;
constexpr std::uint32_t kFirstRestart = 0xD0;
constexpr std::uint32_t kLastRestart = 0xD7;

/// A picture may come in many scans over all of it. Beyond this, a small file would take a long time.
constexpr std::int64_t kMostScannedPixels = 16 * kMostPicturePixels;

bool isRestart(std::uint32_t mark) { return mark >= kFirstRestart && mark <= kLastRestart; }

/// A frame that needs no arithmetic decoder and no other pictures.
bool isFrame(std::uint32_t mark) { return mark >= 0xC0 && mark <= 0xC2; }
bool isOtherFrame(std::uint32_t mark) {
  return mark > 0xC2 && mark <= 0xCF && mark != 0xC4 && mark != 0xC8 && mark != 0xCC;
}

/// Texts, profiles and thumbnails, but not what tells how the colours are kept.
bool isAside(std::uint32_t mark) { return mark == 0xFE || (mark >= 0xE1 && mark <= 0xEF && mark != 0xEE); }

/// Goes through a file, segment by segment, and keeps what makes the picture.
class Segments {
 public:
  explicit Segments(std::string_view bytes) : file_(bytes) {}

  bool read() {
    add(0, 2);
    for (std::size_t at = 2;;) {
      // Any number of FF may stand before a mark.
      while (file_.byte(at) == 0xFF && file_.byte(at + 1) == 0xFF) ++at;
      const std::uint32_t mark = file_.byte(at) == 0xFF ? file_.byte(at + 1) : 0;
      if (mark == kEndOfImage) {
        add(at, 2);
        return hasScan_;
      }
      at = readSegment(at, mark);
      if (at == 0) return false;
    }
  }

  PictureFile picture{PictureFormat::Jpeg};

 private:
  void add(std::size_t at, std::size_t count) { picture.bytes += file_.part(at, count); }

  /// Where the next one begins; 0 where this is none, or nothing that would be decoded.
  std::size_t readSegment(std::size_t at, std::uint32_t mark) {
    const std::size_t size = 2 + std::size_t{file_.wordHighFirst(at + 2)};
    const bool hasSize = mark > 1 && mark != kStart && !isRestart(mark);
    if (!hasSize || size < 4 || !file_.has(at, size) || isOtherFrame(mark)) return 0;
    if (isFrame(mark) && !readFrame(at)) return 0;
    if (!isAside(mark)) add(at, size);
    if (mark != kScan) return at + size;
    return countScan() ? readScan(at + size) : 0;
  }

  /// One only.
  bool readFrame(std::size_t at) {
    const bool isFirst = picture.width == 0;
    picture.height = static_cast<Long>(file_.wordHighFirst(at + 5));
    picture.width = static_cast<Long>(file_.wordHighFirst(at + 7));
    return isFirst && file_.byte(at + 4) == 8 && isPictureSize(picture.width, picture.height);
  }

  bool countScan() {
    hasScan_ = picture.width != 0;
    scannedPixels_ += std::int64_t{picture.width} * picture.height;
    return hasScan_ && scannedPixels_ <= kMostScannedPixels;
  }

  /// Where the scan ends: with the first FF that neither stands for itself nor is a restart.
  std::size_t readScan(std::size_t start) {
    const std::string_view rest = file_.from(start);
    std::size_t end = 0;
    while ((end = rest.find('\xFF', end)) != std::string_view::npos) {
      const std::uint32_t next = file_.byte(start + end + 1);
      if (next != 0 && !isRestart(next)) break;
      end += 2;
    }
    if (end == std::string_view::npos) return 0;
    add(start, end);
    return start + end;
  }

  ByteView file_;
  bool hasScan_ = false;
  std::int64_t scannedPixels_ = 0;
};

}  // namespace

std::optional<PictureFile> jpegPicture(std::string_view bytes) {
  Segments segments(bytes);
  if (!segments.read()) return {};
  return std::move(segments.picture);
}

}  // namespace tessaly::platform
