#include "examples/showcase/window/Folded.h"

#include <algorithm>

namespace showcase {
namespace {

bool isWithin(char16_t c, char16_t first, char16_t last) { return c >= first && c <= last; }

char16_t small(char16_t c) {
  constexpr char16_t timesSign = 0xD7;
  if (isWithin(c, u'A', u'Z')) return static_cast<char16_t>(c + 0x20);
  if (c < 0x80) return c;
  if (isWithin(c, 0xC0, 0xDE) && c != timesSign) return static_cast<char16_t>(c + 0x20);
  if (isWithin(c, 0x100, 0x137) || isWithin(c, 0x14A, 0x177)) return static_cast<char16_t>(c | 1);
  if (isWithin(c, 0x139, 0x148) || isWithin(c, 0x179, 0x17E)) return static_cast<char16_t>(c + (c & 1));
  if (isWithin(c, 0x391, 0x3A9) || isWithin(c, 0x410, 0x42F)) return static_cast<char16_t>(c + 0x20);
  return isWithin(c, 0x400, 0x40F) ? static_cast<char16_t>(c + 0x50) : c;
}

}  // namespace

tessaly::String folded(std::u16string_view text) {
  tessaly::String result(text);
  std::transform(result.begin(), result.end(), result.begin(), small);
  return result;
}

}  // namespace showcase
