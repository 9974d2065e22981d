#pragma once

#include <optional>
#include <string_view>

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"

namespace tessaly {

/// The number's plain decimal text with up to 15 digits and '.', exponents as in 1E-05 and 1E+15.
/// Raises error 6 for an infinite value and for what is no number.
String numberText(double value);

/// The number that a text holds: blanks around, a sign, digits, '.' or `separator` before the fraction, an
/// exponent with e or E; no grouping. Nothing where the text is no number. A number beyond a double's range
/// is infinite, one too small for it is 0.
TESSALY_API std::optional<double> parseNumber(std::u16string_view text, std::u16string_view separator);

/// The number of a text that is up to nine digits, perhaps behind a '-', and nothing else: the short way for
/// the usual case. What gives nothing here is for `parseNumber`.
std::optional<Long> parsePlainLong(std::u16string_view text);

}  // namespace tessaly
