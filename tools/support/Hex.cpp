#include "tools/support/Hex.h"

#include <algorithm>
#include <string_view>

namespace tessaly::tools {

String hexDigits(std::uint64_t number, std::size_t least, HexLetters letters) {
  const std::u16string_view digits = letters == HexLetters::Small ? u"0123456789abcdef" : u"0123456789ABCDEF";
  String result;
  for (; number != 0 || result.size() < least; number >>= 4U) result += digits[number & 0xFU];
  std::reverse(result.begin(), result.end());
  return result;
}

}  // namespace tessaly::tools
