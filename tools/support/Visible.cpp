#include "tools/support/Visible.h"

#include <algorithm>
#include <array>

#include "tessaly/base/Text.h"
#include "tessaly/base/Unicode.h"
#include "tools/support/Hex.h"
#include "tools/support/Ranges.h"

namespace tessaly::tools {
namespace {

constexpr std::size_t kLongestQuote = 80;

// Soft hyphen, letter mark, fillers, vowel separator, joiners and marks, line and paragraph separators,
// directions, invisible signs, byte-order mark, annotations, tags.
constexpr std::array kHidden = {Range{0x00AD, 0x00AD}, Range{0x061C, 0x061C}, Range{0x115F, 0x1160},
                                Range{0x180E, 0x180E}, Range{0x200B, 0x200F}, Range{0x2028, 0x202E},
                                Range{0x2060, 0x206F}, Range{0x3164, 0x3164}, Range{0xFEFF, 0xFEFF},
                                Range{0xFFA0, 0xFFA0}, Range{0xFFF9, 0xFFFB}, Range{0xE0000, 0xE007F}};

std::string escaped(char16_t unit) { return "\\u" + toUtf8(hexDigits(unit, 4, HexLetters::Capital)); }

/// How much of a text stands before what is not to be sent to a terminal.
std::size_t lengthOfShown(std::u16string_view text) {
  std::size_t length = 0;
  while (length < text.size()) {
    const auto front = unicode::frontOf(text.substr(length));
    if (!front || isOrder(text[length]) || isHidden(front->value)) break;
    length += front->units;
  }
  return length;
}

}  // namespace

bool isOrder(char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit <= 0x9F); }

bool isHidden(char32_t c) { return isIn(kHidden, c); }

bool isShowable(std::u16string_view text) { return lengthOfShown(text) == text.size(); }

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

}  // namespace tessaly::tools
