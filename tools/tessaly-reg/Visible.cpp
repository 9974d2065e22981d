#include "tools/tessaly-reg/Visible.h"

#include <algorithm>

#include "tessaly/base/Text.h"
#include "tessaly/base/Unicode.h"

namespace tessaly::reg {
namespace {

constexpr std::size_t kLongestQuote = 80;

bool isBetween(char16_t unit, char16_t first, char16_t last) { return unit >= first && unit <= last; }

std::string escaped(char16_t unit) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string result = "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) result += digits[(unit >> shift) & 0xFU];
  return result;
}

/// What breaks lines, turns the direction of writing or has no width at all.
bool isHidden(char16_t unit) {
  return isBetween(unit, 0x2028, 0x2029) || unit == 0x061C || isBetween(unit, 0x200E, 0x200F) ||
         isBetween(unit, 0x202A, 0x202E) || isBetween(unit, 0x2066, 0x2069) || unit == 0xFEFF;
}

/// How much of a text stands before what is not to be sent to a terminal.
std::size_t lengthOfShown(std::u16string_view text) {
  std::size_t length = 0;
  while (length < text.size()) {
    const auto front = unicode::frontOf(text.substr(length));
    if (!front || isOrder(text[length]) || isHidden(text[length])) break;
    length += front->units;
  }
  return length;
}

}  // namespace

bool isOrder(char16_t unit) { return unit < 0x20 || isBetween(unit, 0x7F, 0x9F); }

std::string visible(std::u16string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::size_t shown = lengthOfShown(text);
    result += toUtf8(text.substr(0, shown));
    if (shown < text.size()) result += escaped(text[shown]);
    text.remove_prefix(std::min(shown + 1, text.size()));
  }
  return result;
}

std::string visible(std::string_view text) { return visible(fromUtf8(text)); }

std::string inQuotes(std::u16string_view text) {
  const bool isLong = text.size() > kLongestQuote;
  return '"' + visible(text.substr(0, kLongestQuote)) + (isLong ? "…\"" : "\"");
}

}  // namespace tessaly::reg
