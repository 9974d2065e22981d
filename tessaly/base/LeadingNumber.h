#pragma once

#include <string_view>

namespace tessaly {

/// The number at a text's front, by no locale: a sign, digits, one '.', an exponent with e or E and a sign.
/// Spaces, tabs and line ends count as not there, wherever they stand; the first other character that can't
/// go on with the number ends it. 0 where there is none. A number beyond a double's range is infinite, one
/// too small for it is 0.
double leadingNumber(std::u16string_view text);

}  // namespace tessaly
