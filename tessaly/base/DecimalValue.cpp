#include "tessaly/base/DecimalValue.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace tessaly {
namespace {

/// What a number is that a double can't hold: the position of its first digit that counts tells.
double beyondRange(std::string_view number) {
  const auto e = number.find('e');
  long long exponent = 0;
  if (e != std::string_view::npos) {
    const auto [end, error] = std::from_chars(number.data() + e + 1, number.data() + number.size(), exponent);
    if (error != std::errc()) return number[e + 1] == '-' ? 0.0 : std::numeric_limits<double>::infinity();
  }
  const std::string_view mantissa = number.substr(0, e);
  const auto point = static_cast<long long>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<long long>(mantissa.find_first_of("123456789"));
  // An exponent beyond any text's length decides alone.
  constexpr long long longest = 1'000'000'000'000;
  return point - first + std::clamp(exponent, -longest, longest) > 0 ? std::numeric_limits<double>::infinity()
                                                                     : 0.0;
}

}  // namespace

double decimalValue(const std::string& number) {
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  return result.ec == std::errc::result_out_of_range ? beyondRange(number) : value;
}

}  // namespace tessaly
