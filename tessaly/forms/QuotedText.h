#pragma once

#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly {

/// A text between quotes on one line. What does not belong on a line, and what a file of UTF-8 would lose,
/// stands there as \n, \r, \t or \u and four hexadecimal digits; \" and \\ are the two characters themselves.
String quoted(std::u16string_view text);

/// Takes a quoted text off the front of a line. Error 380 where there is none.
String takeQuoted(std::u16string_view& line);

}  // namespace tessaly
