#include "tools/zplogger/KeyDecoder.h"

#include <algorithm>

#include "tessaly/base/Unicode.h"

namespace tessaly::zplogger {
namespace {

constexpr char kEscape = '\x1b';

/// How many bytes the order at the front has, its Escape among them; 0 where it is none. It goes up to its
/// first byte from '@' on.
std::size_t lengthOfOrder(std::string_view text) {
  if (text.size() < 2 || (text[1] != '[' && text[1] != 'O')) return 0;
  std::size_t last = 2;
  while (last < text.size() && (text[last] < '@' || text[last] > '~')) ++last;
  return std::min(last + 1, text.size());
}

/// Whether a text that begins with no character may be the beginning of one.
bool isCut(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  const auto isTrail = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; };
  return lead >= 0xC2 && lead <= 0xF4 && text.size() < length &&
         std::all_of(text.begin() + 1, text.end(), isTrail);
}

}  // namespace

std::u32string KeyDecoder::take(std::string_view bytes) {
  cut_ += bytes;
  std::u32string keys;
  std::string_view rest = cut_;
  while (!rest.empty()) {
    if (const std::size_t order = rest.front() == kEscape ? lengthOfOrder(rest) : 0) {
      rest.remove_prefix(order);
      continue;
    }
    const auto front = unicode::frontOf(rest);
    if (!front && isCut(rest)) break;
    if (front) keys += front->value;
    rest.remove_prefix(front ? front->units : 1);
  }
  cut_ = std::string(rest);
  return keys;
}

}  // namespace tessaly::zplogger
