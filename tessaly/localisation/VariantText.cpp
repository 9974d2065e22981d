#include "tessaly/localisation/VariantText.h"

#include <array>
#include <charconv>

#include "tessaly/platform/LocalNumber.h"

namespace tessaly {
namespace {

/// A text's own characters, or those of a text made in `made`.
struct TextIn {
  String& made;

  std::u16string_view operator()(const String& text) const { return text; }
  std::u16string_view operator()(Boolean value) const { return value ? u"True" : u"False"; }
  std::u16string_view operator()(double value) const { return made = platform::localNumberText(value); }
  std::u16string_view operator()(Long value) const { return made = decimal(value); }
};

}  // namespace

VariantText::VariantText(const Variant& value) : view_(std::visit(TextIn{made_}, value.value())) {}

String decimal(Long number) {
  std::array<char, 12> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return {digits.data(), result.ptr};
}

}  // namespace tessaly
