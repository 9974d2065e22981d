#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessaly::tests {

/// Puts a file together, number by number; the low byte first where nothing else is told.
class Bytes {
 public:
  Bytes& byte(std::uint32_t value) { return add(value, 1); }
  Bytes& word(std::uint32_t value) { return add(value, 2); }
  Bytes& number(std::uint32_t value) { return add(value, 4); }
  Bytes& numberHighFirst(std::uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) byte(value >> static_cast<unsigned>(shift));
    return *this;
  }
  Bytes& text(std::string_view text) {
    bytes_ += text;
    return *this;
  }
  Bytes& zeros(std::size_t count) {
    bytes_.append(count, '\0');
    return *this;
  }

  const std::string& get() const { return bytes_; }
  std::size_t size() const { return bytes_.size(); }

 private:
  Bytes& add(std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i, value >>= 8U) bytes_ += static_cast<char>(value & 0xFFU);
    return *this;
  }

  std::string bytes_;
};

/// Pixels of one to 64 bits side by side, the first in the highest bits; each row begins with a whole byte
/// and has `multiple` bytes or a multiple of that.
class BitRow {
 public:
  explicit BitRow(unsigned bits) : bits_(bits) {}

  void add(std::uint64_t value) {
    for (unsigned bit = bits_; bit-- > 0;) addBit((value >> bit) & 1U);
  }

  std::string get(std::size_t multiple = 1) const {
    std::string row = row_;
    while (row.size() % multiple != 0) row += '\0';
    return row;
  }

 private:
  void addBit(std::uint64_t bit) {
    if (count_ % 8 == 0) row_ += '\0';
    row_.back() = static_cast<char>(static_cast<unsigned char>(row_.back()) | bit << (7 - count_ % 8));
    ++count_;
  }

  unsigned bits_;
  unsigned count_ = 0;
  std::string row_;
};

}  // namespace tessaly::tests
