#pragma once

#include <string_view>

namespace showcase {

/// Calls `take` with each code point of a text; a surrogate without its partner counts as one.
template <class Take>
void forEachCodePoint(std::u16string_view text, Take take) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t c = text[i];
    const bool pair = (c & 0xFC00) == 0xD800 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00;
    if (pair) c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - char32_t{0xDC00});
    take(c);
  }
}

}  // namespace showcase
