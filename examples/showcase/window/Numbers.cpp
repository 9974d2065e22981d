#include "examples/showcase/window/Numbers.h"

#include <charconv>
#include <string>

#include "tessaly/base/Text.h"

namespace showcase {

std::optional<tessaly::Long> numberOf(std::u16string_view text) {
  const std::string digits = tessaly::toUtf8(text);
  tessaly::Long number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size() || number < 0) return std::nullopt;
  return digits.starts_with('-') ? std::nullopt : std::optional(number);
}

}  // namespace showcase
