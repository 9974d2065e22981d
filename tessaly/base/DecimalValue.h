#pragma once

#include <string>

namespace tessaly {

/// The value of a plain number: digits, '.' among or beside them, and behind them perhaps an exponent with
/// 'e'. A number beyond a double's range is infinite, one too small for it is 0.
double decimalValue(const std::string& number);

}  // namespace tessaly
