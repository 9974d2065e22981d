#include "tessaly/localisation/VariantText.h"

#include <array>
#include <charconv>

#include "tessaly/base/NumberText.h"
#include "tessaly/platform/Core.h"

namespace tessaly {
namespace {

String localNumberText(double number) {
  String text = numberText(number);
  const auto point = text.find(u'.');
  if (point != String::npos) text.replace(point, 1, platform::core().locale->decimalSeparator());
  return text;
}

/// A text's own characters, or those of a text made in `made`.
struct TextIn {
  String& made;

  std::u16string_view operator()(const String& text) const { return text; }
  std::u16string_view operator()(Boolean value) const { return value ? u"True" : u"False"; }
  std::u16string_view operator()(double value) const { return made = localNumberText(value); }
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
