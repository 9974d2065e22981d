#include "tessaly/forms/Base64.h"

#include <array>
#include <cstdint>

namespace tessaly {
namespace {

constexpr std::u16string_view kDigits = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr char16_t kFiller = u'=';
constexpr std::uint8_t kNoDigit = 64;

constexpr std::array<std::uint8_t, 128> makeValues() {
  std::array<std::uint8_t, 128> values{};
  values.fill(kNoDigit);
  for (std::uint8_t value = 0; value < kNoDigit; ++value) values[kDigits[value]] = value;
  return values;
}
constexpr auto kValues = makeValues();

std::uint8_t digitValue(char16_t digit) { return digit < kValues.size() ? kValues[digit] : kNoDigit; }

/// Up to three bytes as one number, the first in the highest place.
std::uint32_t joined(std::string_view bytes) {
  std::uint32_t result = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    result = (result << 8) | (i < bytes.size() ? static_cast<std::uint8_t>(bytes[i]) : 0U);
  }
  return result;
}

/// The bytes of up to four digits; false where one is none, or tells more than whole bytes.
bool append(std::string& bytes, std::u16string_view digits) {
  std::uint32_t joinedDigits = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    const std::uint8_t value = i < digits.size() ? digitValue(digits[i]) : std::uint8_t{0};
    if (value == kNoDigit) return false;
    joinedDigits = (joinedDigits << 6) | value;
  }
  const std::size_t count = digits.size() - 1;
  for (std::size_t i = 0; i < count; ++i) bytes += static_cast<char>((joinedDigits >> (16 - 8 * i)) & 0xFFU);
  return (joinedDigits & (0xFFFFFFU >> (8 * count))) == 0;
}

}  // namespace

String base64Of(std::string_view bytes) {
  String text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::string_view part = bytes.substr(i, 3);
    const std::uint32_t number = joined(part);
    for (std::size_t digit = 0; digit < 4; ++digit) {
      text += digit <= part.size() ? kDigits[(number >> (18 - 6 * digit)) & 0x3FU] : kFiller;
    }
  }
  return text;
}

std::optional<std::string> bytesOfBase64(std::u16string_view text) {
  if (text.size() % 4 != 0) return std::nullopt;
  for (int fillers = 0; fillers < 2 && text.ends_with(kFiller); ++fillers) text.remove_suffix(1);
  std::string bytes;
  bytes.reserve(text.size() / 4 * 3 + 3);
  for (std::size_t i = 0; i < text.size(); i += 4) {
    if (!append(bytes, text.substr(i, 4))) return std::nullopt;
  }
  return bytes;
}

}  // namespace tessaly
