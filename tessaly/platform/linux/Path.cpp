#include "tessaly/platform/linux/Path.h"

#include "tessaly/base/Unicode.h"

namespace tessaly::platform {
namespace {

constexpr char32_t kFirstByte = 0xDC80;
constexpr char32_t kLastByte = 0xDCFF;
constexpr char32_t kShift = 0xDC00;

}  // namespace

std::optional<std::string> pathBytes(std::u16string_view path) {
  std::string bytes;
  bytes.reserve(path.size());
  for (; !path.empty();) {
    const auto front = unicode::frontOf(path);
    const char16_t unit = path.front();
    if (unit == 0) return std::nullopt;
    if (front) {
      unicode::append(bytes, front->value);
    } else if (unit >= kFirstByte && unit <= kLastByte) {
      bytes += static_cast<char>(unit - kShift);
    } else {
      unicode::append(bytes, unicode::kReplacement);
    }
    path.remove_prefix(front ? front->units : 1);
  }
  return bytes;
}

String pathText(std::string_view bytes) {
  String text;
  unicode::appendUtf8(text, bytes, [](unsigned char byte) { return kShift + byte; });
  return text;
}

}  // namespace tessaly::platform
