#include "tessaly/forms/BagText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/base/Text.h"
#include "tessaly/forms/Base64.h"
#include "tessaly/forms/QuotedText.h"

namespace tessaly {
namespace {

constexpr std::u16string_view kSeparator = u" = ";
constexpr std::u16string_view kTrue = u"True";
constexpr std::u16string_view kFalse = u"False";
// Neither is text of whole bytes, so no file looks like it.
constexpr std::u16string_view kNothing = u"nothing";
constexpr std::u16string_view kEmpty = u"empty";

[[noreturn]] void refuse() { throw RuntimeError(RuntimeError::InvalidPropertyValue); }

/// The shortest that reads as the same number, with '.' in every locale.
template <class Number>
String numeral(Number number) {
  std::array<char, 40> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return fromUtf8({digits.data(), written.ptr});
}

template <class Number>
Number number(std::u16string_view text) {
  const std::string digits = toUtf8(text);
  const char* const end = digits.data() + digits.size();
  Number result{};
  const auto read = std::from_chars(digits.data(), end, result);
  if (read.ec != std::errc() || read.ptr != end) refuse();
  return result;
}

struct Writer {
  String operator()(const Variant& value) const { return std::visit(*this, value.value()); }
  String operator()(Boolean value) const {
    const auto bits = static_cast<std::int16_t>(value);
    if (bits == -1 || bits == 0) return u"Boolean " + String(bits != 0 ? kTrue : kFalse);
    return u"Boolean " + numeral(bits);
  }
  String operator()(std::int16_t value) const { return u"Integer " + numeral(value); }
  String operator()(Long value) const { return u"Long " + numeral(value); }
  String operator()(double value) const { return u"Double " + numeral(value); }
  String operator()(const String& value) const { return u"String " + quoted(value); }
  String operator()(const PictureReference& value) const {
    if (!value || value->isEmpty()) return u"Picture " + String(value ? kEmpty : kNothing);
    return u"Picture " + base64Of(pngOf(*value));
  }
  String operator()(const std::shared_ptr<EncodedPicture>& value) const {
    return u"Picture " + base64Of(value->bytes());
  }
};

KeptValue booleanFrom(std::u16string_view text) {
  if (text == kTrue || text == kFalse) return Variant(Boolean(text == kTrue));
  return Variant(Boolean(number<std::int16_t>(text)));
}

KeptValue textFrom(std::u16string_view text) {
  String value = takeQuoted(text);
  if (!text.empty()) refuse();
  return Variant(std::move(value));
}

KeptValue pictureFrom(std::u16string_view text) {
  if (text == kNothing) return PictureReference();
  if (text == kEmpty) return std::make_shared<const Picture>();
  auto bytes = bytesOfBase64(text);
  if (!bytes || bytes->empty()) refuse();
  return std::make_shared<EncodedPicture>(std::move(*bytes));
}

template <class Number>
KeptValue numberFrom(std::u16string_view text) {
  return Variant(number<Number>(text));
}

struct Kind {
  std::u16string_view name;
  KeptValue (*read)(std::u16string_view text);
};
constexpr std::array<Kind, 6> kKinds = {{{u"Boolean", booleanFrom},
                                         {u"Integer", numberFrom<std::int16_t>},
                                         {u"Long", numberFrom<Long>},
                                         {u"Double", numberFrom<double>},
                                         {u"String", textFrom},
                                         {u"Picture", pictureFrom}}};

KeptValue valueOf(std::u16string_view text) {
  const std::size_t end = text.find(u' ');
  if (end == std::u16string_view::npos) refuse();
  const auto* const kind = std::find_if(kKinds.begin(), kKinds.end(),
                                        [&](const Kind& each) { return each.name == text.substr(0, end); });
  if (kind == kKinds.end()) refuse();
  return kind->read(text.substr(end + 1));
}

bool isPlain(char16_t unit) {
  return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z') || (unit >= u'0' && unit <= u'9') ||
         unit == u'_';
}

bool isPlain(std::u16string_view name) {
  return !name.empty() && std::all_of(name.begin(), name.end(), [](char16_t unit) { return isPlain(unit); });
}

String takeName(std::u16string_view& line) {
  if (line.starts_with(u'"')) return takeQuoted(line);
  const std::u16string_view name = line.substr(0, line.find(u' '));
  if (!isPlain(name)) refuse();
  line.remove_prefix(name.size());
  return String(name);
}

}  // namespace

String lineOf(const KeptProperty& property) {
  const String name = isPlain(property.name) ? property.name : quoted(property.name);
  return name + String(kSeparator) + std::visit(Writer{}, property.value);
}

KeptProperty propertyOf(std::u16string_view line) {
  String name = takeName(line);
  if (!line.starts_with(kSeparator)) refuse();
  return {std::move(name), valueOf(line.substr(kSeparator.size()))};
}

}  // namespace tessaly
