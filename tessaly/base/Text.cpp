#include "tessaly/base/Text.h"

#include "tessaly/base/Unicode.h"

namespace tessaly {
namespace {

using unicode::append;
using unicode::frontOf;
using unicode::kReplacement;

}  // namespace

String fromUtf8(std::string_view text) {
  String result;
  unicode::appendUtf8(result, text, [](unsigned char) { return kReplacement; });
  return result;
}

std::string toUtf8(std::u16string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const auto front = frontOf(text);
    append(result, front ? front->value : kReplacement);
    text.remove_prefix(front ? front->units : 1);
  }
  return result;
}

String fromWide(std::wstring_view text) {
  if constexpr (sizeof(wchar_t) == sizeof(char16_t)) {
    return {text.begin(), text.end()};
  } else {
    String result;
    result.reserve(text.size());
    for (const wchar_t c : text) {
      const auto value = static_cast<char32_t>(c);
      append(result, unicode::isCodePoint(value) ? value : kReplacement);
    }
    return result;
  }
}

std::wstring toWide(std::u16string_view text) {
  if constexpr (sizeof(wchar_t) == sizeof(char16_t)) {
    return {text.begin(), text.end()};
  } else {
    std::wstring result;
    result.reserve(text.size());
    while (!text.empty()) {
      const auto front = frontOf(text);
      result += static_cast<wchar_t>(front ? front->value : kReplacement);
      text.remove_prefix(front ? front->units : 1);
    }
    return result;
  }
}

}  // namespace tessaly
