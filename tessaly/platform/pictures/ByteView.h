#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessaly::platform {

/// Reads numbers out of bytes that somebody else made. Behind their end everything is 0.
class ByteView {
 public:
  explicit ByteView(std::string_view bytes) : bytes_(bytes) {}

  std::size_t size() const { return bytes_.size(); }
  bool has(std::size_t at, std::size_t count) const {
    return at <= bytes_.size() && count <= bytes_.size() - at;
  }
  std::string_view part(std::size_t at, std::size_t count) const {
    return has(at, count) ? bytes_.substr(at, count) : std::string_view();
  }
  std::string_view from(std::size_t at) const { return part(at, at <= size() ? size() - at : 0); }

  std::uint32_t byte(std::size_t at) const { return has(at, 1) ? static_cast<unsigned char>(bytes_[at]) : 0; }

  /// With the low byte first.
  std::uint32_t word(std::size_t at) const { return byte(at) | byte(at + 1) << 8U; }
  std::uint32_t number(std::size_t at) const { return word(at) | word(at + 2) << 16U; }

  /// With the high byte first.
  std::uint32_t wordHighFirst(std::size_t at) const { return byte(at) << 8U | byte(at + 1); }
  std::uint32_t numberHighFirst(std::size_t at) const {
    return wordHighFirst(at) << 16U | wordHighFirst(at + 2);
  }

 private:
  std::string_view bytes_;
};

/// Puts a number behind what is there, its low byte first.
inline void addWord(std::string& bytes, std::uint32_t value) {
  bytes += static_cast<char>(value & 0xFFU);
  bytes += static_cast<char>(value >> 8U & 0xFFU);
}

inline void addNumber(std::string& bytes, std::uint32_t value) {
  addWord(bytes, value & 0xFFFFU);
  addWord(bytes, value >> 16U);
}

}  // namespace tessaly::platform
