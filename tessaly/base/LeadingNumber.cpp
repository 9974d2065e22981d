#include "tessaly/base/LeadingNumber.h"

#include <string>

#include "tessaly/base/DecimalValue.h"

namespace tessaly {
namespace {

bool isBlank(char16_t c) { return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n'; }

/// Goes through a text as if it had no blanks.
class Unblanked {
 public:
  explicit Unblanked(std::u16string_view text) : rest_(text) { skipBlanks(); }

  bool take(char16_t c) {
    if (rest_.empty() || rest_.front() != c) return false;
    rest_.remove_prefix(1);
    skipBlanks();
    return true;
  }

  std::string takeDigits() {
    std::string digits;
    while (!rest_.empty() && rest_.front() >= u'0' && rest_.front() <= u'9') {
      digits += static_cast<char>(rest_.front());
      take(rest_.front());
    }
    return digits;
  }

  bool takeMinus() {
    if (take(u'-')) return true;
    take(u'+');
    return false;
  }

 private:
  void skipBlanks() {
    while (!rest_.empty() && isBlank(rest_.front())) rest_.remove_prefix(1);
  }

  std::u16string_view rest_;
};

std::string takeMantissa(Unblanked& text) {
  const std::string whole = text.takeDigits();
  const std::string fraction = text.take(u'.') ? text.takeDigits() : std::string();
  return whole.empty() && fraction.empty() ? whole : whole + '.' + fraction;
}

/// Nothing where no digits follow: the number ends before its 'e' then.
std::string takeExponent(Unblanked& text) {
  if (!text.take(u'e') && !text.take(u'E')) return {};
  const char* const begin = text.takeMinus() ? "e-" : "e";
  const std::string digits = text.takeDigits();
  return digits.empty() ? digits : begin + digits;
}

}  // namespace

double leadingNumber(std::u16string_view text) {
  Unblanked rest(text);
  const bool negative = rest.takeMinus();
  const std::string mantissa = takeMantissa(rest);
  if (mantissa.empty()) return 0;
  const double value = decimalValue(mantissa + takeExponent(rest));
  return negative ? -value : value;
}

}  // namespace tessaly
