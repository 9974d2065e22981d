#include "tools/support/Utf8.h"

#include "tessaly/base/Unicode.h"

namespace tessaly::tools {

std::optional<String> strictUtf8(std::string_view bytes) {
  String text;
  bool isSound = true;
  unicode::appendUtf8(text, bytes, [&](unsigned char) {
    isSound = false;
    return unicode::kReplacement;
  });
  if (!isSound) return std::nullopt;
  return text;
}

bool hasWholePairs(std::u16string_view text) {
  while (!text.empty()) {
    const auto front = unicode::frontOf(text);
    if (!front) return false;
    text.remove_prefix(front->units);
  }
  return true;
}

std::size_t firstFaultOf(std::string_view bytes) {
  std::size_t at = 0;
  while (at < bytes.size()) {
    const auto front = unicode::frontOf(bytes.substr(at));
    if (!front) break;
    at += front->units;
  }
  return at;
}

}  // namespace tessaly::tools
