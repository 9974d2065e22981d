#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "tessaly/base/Types.h"

/// Letters and digits of ASCII, which no locale has a say in.
namespace tessaly {

/// A capital letter of ASCII as the small one; any other unit as it is.
template <class Unit>
constexpr Unit asciiLower(Unit unit) {
  return unit >= 'A' && unit <= 'Z' ? static_cast<Unit>(unit + ('a' - 'A')) : unit;
}

inline String asciiLowerText(std::u16string_view text) {
  String lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), asciiLower<char16_t>);
  return lower;
}

inline std::string asciiLowerText(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), asciiLower<char>);
  return lower;
}

/// The value of a hexadecimal digit, in either case; 16 for what is none.
constexpr std::uint32_t hexDigitValue(char16_t unit) {
  if (unit >= u'0' && unit <= u'9') return unit - std::uint32_t{u'0'};
  const char16_t letter = asciiLower(unit);
  return letter >= u'a' && letter <= u'f' ? letter - std::uint32_t{u'a'} + 10 : 16;
}

}  // namespace tessaly
