#include "tessaly/platform/pictures/Dib.h"

namespace tessaly::platform {
namespace {

/// Unpacks runs, from the bottom left on.
class Runs {
 public:
  Runs(const ByteView& packed, const DibHeader& header)
      : packed_(packed),
        isHalf_(header.packing == DibPacking::Runs4),
        width_(static_cast<std::size_t>(header.width)),
        height_(static_cast<std::size_t>(header.height)),
        // Rows of a plain bitmap have a multiple of four bytes.
        rowSize_((width_ + 3) / 4 * 4),
        rows_(rowSize_ * height_, '\0') {}

  bool read() {
    while (packed_.has(at_, 2)) {
      const std::uint32_t count = packed_.byte(at_);
      const std::uint32_t value = packed_.byte(at_ + 1);
      at_ += 2;
      if (count == 0 && value == kEnd) return true;
      if (!(count != 0 ? putRun(count, value) : putOther(value))) return false;
    }
    return false;
  }

  std::string rows() { return std::move(rows_); }

 private:
  static constexpr std::uint32_t kEndOfRow = 0;
  static constexpr std::uint32_t kEnd = 1;
  static constexpr std::uint32_t kMove = 2;

  /// Two pixels of four bits take turns.
  std::uint32_t pixelOf(std::uint32_t value, std::uint32_t turn) const {
    if (!isHalf_) return value;
    return turn % 2 == 0 ? value >> 4U : value & 0xFU;
  }

  /// What lies behind a row's end does not count.
  bool put(std::uint32_t pixel) {
    if (y_ >= height_) return false;
    if (x_ < width_) rows_[y_ * rowSize_ + x_] = static_cast<char>(pixel);
    ++x_;
    return true;
  }

  bool putRun(std::uint32_t count, std::uint32_t value) {
    for (std::uint32_t i = 0; i < count; ++i) {
      if (!put(pixelOf(value, i))) return false;
    }
    return true;
  }

  bool putOther(std::uint32_t value) {
    if (value == kEndOfRow) {
      x_ = 0;
      ++y_;
      return true;
    }
    return value == kMove ? move() : putPixels(value);
  }

  bool move() {
    if (!packed_.has(at_, 2)) return false;
    x_ += packed_.byte(at_);
    y_ += packed_.byte(at_ + 1);
    at_ += 2;
    return true;
  }

  /// As they stand, in a whole number of words.
  bool putPixels(std::uint32_t count) {
    const std::size_t size = isHalf_ ? (count + 1) / 2 : count;
    const std::size_t padded = (size + 1) / 2 * 2;
    if (!packed_.has(at_, padded)) return false;
    for (std::uint32_t i = 0; i < count; ++i) {
      if (!put(pixelOf(packed_.byte(at_ + (isHalf_ ? i / 2 : i)), i))) return false;
    }
    at_ += padded;
    return true;
  }

  ByteView packed_;
  bool isHalf_;
  std::size_t width_;
  std::size_t height_;
  std::size_t rowSize_;
  std::string rows_;
  std::size_t at_ = 0;
  std::size_t x_ = 0;
  std::size_t y_ = 0;
};

}  // namespace

std::optional<std::string> unpackedRuns(const ByteView& packed, const DibHeader& header) {
  Runs runs(packed, header);
  if (!runs.read()) return {};
  return runs.rows();
}

}  // namespace tessaly::platform
