#pragma once

#include <cstddef>
#include <cstdint>

#include "tessaly/base/Types.h"

namespace tessaly::tools {

enum class HexLetters { Small, Capital };

/// A number in hexadecimal digits, with zeros in front of it up to `least` digits.
String hexDigits(std::uint64_t number, std::size_t least, HexLetters letters);

}  // namespace tessaly::tools
