#include "tessaly/hosts/qt/help/MapFiles.h"

#include <algorithm>

#include "tessaly/base/Ascii.h"

namespace tessaly::qt {
namespace {

std::u16string_view trimmed(std::u16string_view text) {
  constexpr std::u16string_view kBlanks = u" \t\r";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::u16string_view takeLine(std::u16string_view& text) {
  const std::u16string_view line = text.substr(0, text.find(u'\n'));
  text.remove_prefix(std::min(line.size() + 1, text.size()));
  return trimmed(line);
}

std::u16string_view takeWord(std::u16string_view& line) {
  const std::u16string_view word = line.substr(0, line.find_first_of(u" \t"));
  line = trimmed(line.substr(word.size()));
  return word;
}

/// A number as a header file has it, decimal or with "0x"; its sign and size as the 32 bits come.
std::optional<std::uint32_t> numberOf(std::u16string_view word) {
  const bool isNegative = word.starts_with(u'-');
  if (isNegative) word.remove_prefix(1);
  const bool isHex = word.starts_with(u"0x") || word.starts_with(u"0X");
  if (isHex) word.remove_prefix(2);
  if (word.empty() || word.size() > 10) return {};
  std::uint32_t number = 0;
  for (const char16_t unit : word) {
    const std::uint32_t base = isHex ? 16 : 10;
    if (hexDigitValue(unit) >= base) return {};
    number = number * base + hexDigitValue(unit);
  }
  return isNegative ? 0 - number : number;
}

}  // namespace

std::optional<String> nameOfNumber(std::u16string_view text, Long number) {
  while (!text.empty()) {
    std::u16string_view line = takeLine(text);
    if (takeWord(line) != u"#define") continue;
    const std::u16string_view name = takeWord(line);
    if (numberOf(takeWord(line)) == static_cast<std::uint32_t>(number)) return String(name);
  }
  return {};
}

std::optional<String> pageOfName(std::u16string_view text, std::u16string_view name) {
  while (!text.empty()) {
    const std::u16string_view line = takeLine(text);
    const std::size_t equals = line.find(u'=');
    if (equals == String::npos || trimmed(line.substr(0, equals)) != name) continue;
    const std::u16string_view page = line.substr(equals + 1);
    return String(trimmed(page.substr(0, page.find(u';'))));
  }
  return {};
}

}  // namespace tessaly::qt
