#include "tessaly/base/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "tessaly/base/DecimalValue.h"
#include "tessaly/base/RuntimeError.h"

namespace tessaly {
namespace {

constexpr std::u16string_view kBlanks = u" \t\r\n";

bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

/// Goes through a text from its front and writes what it has accepted as plain ASCII.
class NumberScan {
 public:
  explicit NumberScan(std::u16string_view text) : rest_(text) {}

  bool atEnd() const { return rest_.empty(); }
  const std::string& accepted() const { return accepted_; }

  bool take(std::u16string_view word, std::string_view as) {
    if (word.empty() || !rest_.starts_with(word)) return false;
    rest_.remove_prefix(word.size());
    accepted_ += as;
    return true;
  }

  std::size_t takeDigits() {
    std::size_t count = 0;
    while (count < rest_.size() && isDigit(rest_[count])) accepted_ += static_cast<char>(rest_[count++]);
    rest_.remove_prefix(count);
    return count;
  }

 private:
  std::u16string_view rest_;
  std::string accepted_;
};

std::u16string_view withoutBlanks(std::u16string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool scanMantissa(NumberScan& scan, std::u16string_view separator) {
  const std::size_t whole = scan.takeDigits();
  if (!scan.take(u".", ".") && !scan.take(separator, ".")) return whole > 0;
  return scan.takeDigits() + whole > 0;
}

bool scanExponent(NumberScan& scan) {
  if (!scan.take(u"e", "e") && !scan.take(u"E", "e")) return true;
  if (!scan.take(u"-", "-")) scan.take(u"+", "");
  return scan.takeDigits() > 0;
}

}  // namespace

String numberText(double value) {
  if (!std::isfinite(value)) throw RuntimeError(RuntimeError::Overflow);
  std::array<char, 32> buffer{};
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 15);
  String text(buffer.data(), result.ptr);
  std::replace(text.begin(), text.end(), u'e', u'E');
  return text == u"-0" ? u"0" : text;
}

std::optional<double> parseNumber(std::u16string_view text, std::u16string_view separator) {
  NumberScan scan(withoutBlanks(text));
  const bool negative = scan.take(u"-", "");
  if (!negative) scan.take(u"+", "");
  if (!scanMantissa(scan, separator) || !scanExponent(scan) || !scan.atEnd()) return std::nullopt;
  const double value = decimalValue(scan.accepted());
  return negative ? -value : value;
}

std::optional<Long> parsePlainLong(std::u16string_view text) {
  const bool negative = text.starts_with(u'-');
  const std::u16string_view digits = text.substr(negative ? 1 : 0);
  if (digits.empty() || digits.size() > 9 || !std::all_of(digits.begin(), digits.end(), isDigit))
    return std::nullopt;
  Long value = 0;
  for (const char16_t c : digits) value = value * 10 + (c - u'0');
  return negative ? -value : value;
}

}  // namespace tessaly
