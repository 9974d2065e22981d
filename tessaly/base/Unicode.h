#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "tessaly/base/Types.h"

/// The steps that every conversion between the Unicode forms is made of; each conversion decides for itself
/// what becomes of a malformed place.
namespace tessaly::unicode {

inline constexpr char32_t kReplacement = 0xFFFD;

struct CodePoint {
  char32_t value;
  std::size_t units;
};

inline bool isSurrogate(char32_t c) { return (c & ~char32_t{0x7FF}) == 0xD800; }
inline bool isLowSurrogate(char32_t c) { return (c & ~char32_t{0x3FF}) == 0xDC00; }
inline bool isCodePoint(char32_t c) { return c <= 0x10FFFF && !isSurrogate(c); }

/// The code point at the front of a text that is not empty, or nothing where it begins with no valid UTF-8.
inline std::optional<CodePoint> frontOf(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return CodePoint{lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return std::nullopt;
  char32_t value = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return std::nullopt;
    value = (value << 6) | (byte(i) & 0x3FU);
  }
  const char32_t least = length == 4 ? 0x10000 : length == 3 ? 0x800 : 0x80;
  if (value < least || !isCodePoint(value)) return std::nullopt;
  return CodePoint{value, length};
}

/// The code point at the front of a text that is not empty, or nothing where it is a lone surrogate.
inline std::optional<CodePoint> frontOf(std::u16string_view text) {
  const char32_t first = text[0];
  if (!isSurrogate(first)) return CodePoint{first, 1};
  if (isLowSurrogate(first) || text.size() < 2 || !isLowSurrogate(text[1])) return std::nullopt;
  return CodePoint{0x10000 + ((first - 0xD800) << 10) + (char32_t{text[1]} - 0xDC00), 2};
}

/// Writes a code point at `to`; gives the place behind it.
inline char16_t* write(char16_t* to, char32_t c) {
  if (c < 0x10000) {
    *to++ = static_cast<char16_t>(c);
  } else {
    *to++ = static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
    *to++ = static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
  }
  return to;
}

inline void append(String& text, char32_t c) {
  std::array<char16_t, 2> units{};
  text.append(units.data(), write(units.data(), c));
}

inline void append(std::string& text, char32_t c) {
  const auto trail = [&](unsigned shift) { text += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    text += static_cast<char>(c);
  } else if (c < 0x800) {
    text += static_cast<char>(0xC0 | (c >> 6));
    trail(0);
  } else if (c < 0x10000) {
    text += static_cast<char>(0xE0 | (c >> 12));
    trail(6), trail(0);
  } else {
    text += static_cast<char>(0xF0 | (c >> 18));
    trail(12), trail(6), trail(0);
  }
}

/// Writes UTF-8 text at `to`, which has room for as many units as the text has bytes; gives the place behind
/// it. Each byte that is no UTF-8 becomes the one unit that `replacement` makes of it.
template <class Replace>
char16_t* writeUtf8(char16_t* to, std::string_view text, Replace replacement) {
  while (!text.empty()) {
    const auto byte = static_cast<unsigned char>(text.front());
    if (byte < 0x80) {
      *to++ = byte;
      text.remove_prefix(1);
    } else {
      const auto front = frontOf(text);
      to = write(to, front ? front->value : replacement(byte));
      text.remove_prefix(front ? front->units : 1);
    }
  }
  return to;
}

/// Appends UTF-8 text in the same way.
template <class Replace>
void appendUtf8(String& to, std::string_view text, Replace replacement) {
  const std::size_t before = to.size();
  to.resize(before + text.size());
  const char16_t* end = writeUtf8(to.data() + before, text, replacement);
  to.resize(static_cast<std::size_t>(end - to.data()));
}

}  // namespace tessaly::unicode
