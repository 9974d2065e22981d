#include "tessaly/forms/QuotedText.h"

#include <algorithm>
#include <array>
#include <utility>

#include "tessaly/base/RuntimeError.h"

namespace tessaly {
namespace {

constexpr std::u16string_view kHexDigits = u"0123456789ABCDEF";
constexpr std::array<std::pair<char16_t, char16_t>, 5> kShort = {
    {{u'"', u'"'}, {u'\\', u'\\'}, {u'n', u'\n'}, {u'r', u'\r'}, {u't', u'\t'}}};

[[noreturn]] void refuseText() { throw RuntimeError(RuntimeError::InvalidPropertyValue); }

bool isHigh(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
bool isLow(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

bool isLoneSurrogate(std::u16string_view text, std::size_t i) {
  if (isHigh(text[i])) return i + 1 == text.size() || !isLow(text[i + 1]);
  return isLow(text[i]) && (i == 0 || !isHigh(text[i - 1]));
}

/// Controls, the line ends of Unicode, the mark that may stand at a file's beginning, and what is no
/// character.
bool isUnfit(char16_t unit) {
  return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0x2028 || unit == 0x2029 || unit == 0xFEFF ||
         unit >= 0xFFFE;
}

void appendCode(String& result, char16_t unit) {
  result += u"\\u";
  for (const int shift : {12, 8, 4, 0}) result += kHexDigits[(static_cast<unsigned>(unit) >> shift) & 0xFU];
}

char16_t takeUnit(std::u16string_view& line) {
  if (line.empty()) refuseText();
  const char16_t unit = line.front();
  line.remove_prefix(1);
  return unit;
}

char16_t takeCode(std::u16string_view& line) {
  std::size_t code = 0;
  for (int i = 0; i < 4; ++i) {
    const std::size_t digit = kHexDigits.find(takeUnit(line));
    if (digit == std::u16string_view::npos) refuseText();
    code = code * 16 + digit;
  }
  return static_cast<char16_t>(code);
}

char16_t takeEscaped(std::u16string_view& line) {
  const char16_t name = takeUnit(line);
  if (name == u'u') return takeCode(line);
  const auto* const found =
      std::find_if(kShort.begin(), kShort.end(), [&](const auto& each) { return each.first == name; });
  if (found == kShort.end()) refuseText();
  return found->second;
}

}  // namespace

String quoted(std::u16string_view text) {
  String result = u"\"";
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto* const found =
        std::find_if(kShort.begin(), kShort.end(), [&](const auto& each) { return each.second == text[i]; });
    if (found != kShort.end()) {
      result += {u'\\', found->first};
    } else if (isUnfit(text[i]) || isLoneSurrogate(text, i)) {
      appendCode(result, text[i]);
    } else {
      result += text[i];
    }
  }
  return result += u'"';
}

String takeQuoted(std::u16string_view& line) {
  if (takeUnit(line) != u'"') refuseText();
  String text;
  for (char16_t unit = takeUnit(line); unit != u'"'; unit = takeUnit(line)) {
    text += unit == u'\\' ? takeEscaped(line) : unit;
  }
  return text;
}

}  // namespace tessaly
