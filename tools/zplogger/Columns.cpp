#include "tools/zplogger/Columns.h"

#include <array>

#include "tessaly/base/Unicode.h"
#include "tools/support/Ranges.h"

namespace tessaly::zplogger {
namespace {

using tools::isIn;
using tools::Range;

constexpr std::array kWide = {Range{0x1100, 0x115F},   Range{0x2E80, 0x303E},   Range{0x3041, 0xA4CF},
                              Range{0xA960, 0xA97F},   Range{0xAC00, 0xD7A3},   Range{0xF900, 0xFAFF},
                              Range{0xFE30, 0xFE6F},   Range{0xFF00, 0xFF60},   Range{0xFFE0, 0xFFE6},
                              Range{0x1F300, 0x1F64F}, Range{0x1F900, 0x1F9FF}, Range{0x20000, 0x3FFFD}};

// Combining marks of Latin, Cyrillic, Hebrew, Arabic and Thai, symbols, variation selectors.
constexpr std::array kMarks = {Range{0x0300, 0x036F}, Range{0x0483, 0x0489}, Range{0x0591, 0x05BD},
                               Range{0x064B, 0x065F}, Range{0x0E31, 0x0E31}, Range{0x0E34, 0x0E3A},
                               Range{0x0E47, 0x0E4E}, Range{0x20D0, 0x20FF}, Range{0xFE00, 0xFE0F}};

unicode::CodePoint frontOf(std::u16string_view text) {
  return unicode::frontOf(text).value_or(unicode::CodePoint{unicode::kReplacement, 1});
}

std::size_t columnsOfOne(char32_t c) { return isIn(kMarks, c) ? 0 : isIn(kWide, c) ? 2 : 1; }

}  // namespace

std::size_t columnsOf(std::u16string_view text) {
  std::size_t columns = 0;
  while (!text.empty()) {
    const auto front = frontOf(text);
    columns += columnsOfOne(front.value);
    text.remove_prefix(front.units);
  }
  return columns;
}

String fitting(std::u16string_view text, std::size_t columns) {
  if (columnsOf(text) <= columns) return String(text);
  String result;
  std::size_t used = 1;
  for (auto front = frontOf(text); used + columnsOfOne(front.value) <= columns; front = frontOf(text)) {
    used += columnsOfOne(front.value);
    result += text.substr(0, front.units);
    text.remove_prefix(front.units);
  }
  return columns == 0 ? String() : result + u'…';
}

}  // namespace tessaly::zplogger
