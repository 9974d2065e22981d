#include "tessaly/platform/linux/UpperCase.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace tessaly::platform {
namespace {

/// The table that Windows documents has the pairs of Unicode 5.1. It stays so, since names that are stored
/// must remain the same names.
constexpr std::pair<int, int> kTableVersion{5, 1};

bool isInTable(UChar32 c) {
  UVersionInfo age{};
  u_charAge(c, age);
  return std::pair<int, int>(age[0], age[1]) <= kTableVersion;
}

char16_t fromIcu(char16_t c) {
  const UChar32 upper = u_toupper(c);
  // What would not come back, such as the long s, Windows leaves alone.
  const bool isPair = upper != c && u_tolower(upper) == c && isInTable(c) && isInTable(upper);
  return isPair ? static_cast<char16_t>(upper) : c;
}

/// The upper case of each unit. Never destroyed, since a host's own statics may still need it when the
/// program ends.
const String& table() {
  static const String& units = *[] {
    auto* result = new String(0x10000, u'\0');
    std::iota(result->begin(), result->end(), u'\0');
    std::transform(result->begin(), result->end(), result->begin(), fromIcu);
    return result;
  }();
  return units;
}

char16_t upperOf(char16_t c) {
  if (c >= 0x80) return table()[c];
  return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - (u'a' - u'A')) : c;
}

}  // namespace

String upperCased(std::u16string_view text) {
  String result(text.size(), u'\0');
  std::transform(text.begin(), text.end(), result.begin(), upperOf);
  return result;
}

}  // namespace tessaly::platform
