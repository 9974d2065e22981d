#include "tessaly/platform/pictures/GifCodes.h"

#include <array>
#include <optional>
#include <string>

#include "tessaly/platform/pictures/ByteView.h"

namespace tessaly::platform {
namespace {

constexpr std::uint32_t kMostCodes = 4096;
constexpr unsigned kMostBits = 12;

/// Codes of a changing number of bits out of the blocks.
class CodeReader {
 public:
  explicit CodeReader(std::string_view blocks) : blocks_(blocks) {}

  /// Nothing behind the last one.
  std::optional<std::uint32_t> next(unsigned bits) {
    while (count_ < bits) {
      if (!takeByte()) return {};
    }
    const std::uint32_t code = pending_ & ((1U << bits) - 1);
    pending_ >>= bits;
    count_ -= bits;
    return code;
  }

 private:
  bool takeByte() {
    if (inBlock_ == 0) inBlock_ = blocks_.byte(at_++);
    if (inBlock_ == 0) return false;
    pending_ |= blocks_.byte(at_++) << count_;
    count_ += 8;
    --inBlock_;
    return true;
  }

  ByteView blocks_;
  std::size_t at_ = 0;
  std::uint32_t inBlock_ = 0;
  std::uint32_t pending_ = 0;
  unsigned count_ = 0;
};

/// How many pixels each code stands for; the table grows with each code that is read.
class Lengths {
 public:
  explicit Lengths(unsigned bits) : firstBits_(bits) { clear(); }

  std::uint32_t clearCode() const { return 1U << firstBits_; }
  std::uint32_t endCode() const { return clearCode() + 1; }
  unsigned bits() const { return bits_; }

  void clear() {
    size_ = endCode() + 1;
    bits_ = firstBits_ + 1;
    last_ = 0;
  }

  /// 0 for a code that is none.
  std::uint32_t take(std::uint32_t code) {
    if (code > size_ || (last_ == 0 && code > endCode())) return 0;
    const std::uint32_t length = code < clearCode() ? 1 : code < size_ ? lengths_[code] : last_ + 1;
    if (last_ != 0) add(last_ + 1);
    last_ = length;
    return length;
  }

 private:
  void add(std::uint32_t length) {
    if (size_ == kMostCodes) return;
    lengths_[size_++] = length;
    if (size_ == 1U << bits_ && bits_ < kMostBits) ++bits_;
  }

  unsigned firstBits_;
  unsigned bits_ = 0;
  std::uint32_t size_ = 0;
  std::uint32_t last_ = 0;
  std::array<std::uint32_t, kMostCodes> lengths_{};
};

}  // namespace

bool holdsGifPixels(std::string_view content, std::int64_t count) {
  const std::uint32_t bits = ByteView(content).byte(0);
  if (bits < 1 || bits > 8) return false;
  Lengths lengths(bits);
  CodeReader reader(content.substr(1));
  while (count > 0) {
    const std::optional<std::uint32_t> code = reader.next(lengths.bits());
    if (!code || *code == lengths.endCode()) return false;
    if (*code == lengths.clearCode()) {
      lengths.clear();
      continue;
    }
    const std::uint32_t length = lengths.take(*code);
    if (length == 0) return false;
    count -= length;
  }
  return true;
}

}  // namespace tessaly::platform
