#include "tessaly/forms/PropertyBag.h"

#include <algorithm>
#include <utility>

#include "tessaly/base/NumberText.h"
#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/BagText.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/LocalNumber.h"

namespace tessaly {
namespace {

String upperCase(std::u16string_view text) { return platform::core().locale->CharUpperW(text); }

struct Reading {
  PropertyValue operator()(const Variant& value) const { return value; }
  PropertyValue operator()(const PictureReference& value) const { return value; }
  PropertyValue operator()(const std::shared_ptr<EncodedPicture>& value) const { return value->picture(); }
};

KeptValue kept(const PropertyValue& value) {
  return std::visit([](const auto& each) { return KeptValue(each); }, value);
}

/// Takes the first line off a text; its end is \n or \r\n.
std::u16string_view takeLine(std::u16string_view& text) {
  const std::size_t end = std::min(text.find(u'\n'), text.size());
  std::u16string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  if (line.ends_with(u'\r')) line.remove_suffix(1);
  return line;
}

const Variant& plainOf(const PropertyValue& value) {
  const auto* const plain = std::get_if<Variant>(&value);
  if (plain == nullptr) throw RuntimeError(RuntimeError::TypeMismatch);
  return *plain;
}

struct ToBoolean {
  Boolean operator()(Boolean value) const { return value; }
  Boolean operator()(std::int16_t value) const { return value != 0; }
  Boolean operator()(Long value) const { return value != 0; }
  Boolean operator()(double value) const {
    Variant(value).toLong();  // for its error 6
    return value != 0;
  }
  Boolean operator()(const String& text) const {
    const String word = upperCase(text);
    if (word == u"TRUE" || word == u"FALSE") return word == u"TRUE";
    const auto number = parseNumber(text, u".");
    if (!number) throw RuntimeError(RuntimeError::TypeMismatch);
    return (*this)(*number);
  }
};

struct ToString {
  String operator()(Boolean value) const { return value ? u"True" : u"False"; }
  String operator()(double value) const { return platform::localNumberText(value); }
  String operator()(const String& text) const { return text; }
};

}  // namespace

struct PropertyBag::Entry {
  KeptProperty property;
  String upperName;
};

PropertyBag::PropertyBag() = default;
PropertyBag::PropertyBag(const PropertyBag&) = default;
PropertyBag& PropertyBag::operator=(const PropertyBag&) = default;
PropertyBag::~PropertyBag() = default;

std::vector<PropertyBag::Entry>::const_iterator PropertyBag::find(std::u16string_view name) const {
  const String upperName = upperCase(name);
  return std::find_if(entries_.begin(), entries_.end(),
                      [&](const Entry& entry) { return entry.upperName == upperName; });
}

PropertyValue PropertyBag::ReadProperty(std::u16string_view name, const PropertyValue& defaultValue) const {
  const auto found = find(name);
  return found != entries_.end() ? std::visit(Reading{}, found->property.value) : defaultValue;
}

void PropertyBag::WriteProperty(std::u16string_view name, const PropertyValue& value,
                                const PropertyValue& defaultValue) {
  const auto found = find(name);
  const bool isKept = value != defaultValue;
  if (found == entries_.end()) {
    if (isKept) entries_.push_back({{String(name), kept(value)}, upperCase(name)});
  } else if (isKept) {
    entries_[static_cast<std::size_t>(found - entries_.begin())].property.value = kept(value);
  } else {
    entries_.erase(found);
  }
}

String PropertyBag::text() const {
  String text;
  for (const Entry& entry : entries_) text += lineOf(entry.property) + u'\n';
  return text;
}

PropertyBag PropertyBag::fromText(std::u16string_view text) {
  PropertyBag bag;
  while (!text.empty()) {
    const std::u16string_view line = takeLine(text);
    if (line.empty()) continue;
    KeptProperty property = propertyOf(line);
    String upperName = upperCase(property.name);
    bag.entries_.push_back({std::move(property), std::move(upperName)});
  }
  bag.refuseEqualNames();
  return bag;
}

void PropertyBag::refuseEqualNames() const {
  std::vector<std::u16string_view> names;
  for (const Entry& entry : entries_) names.emplace_back(entry.upperName);
  std::sort(names.begin(), names.end());
  const bool areEqual = std::adjacent_find(names.begin(), names.end()) != names.end();
  if (areEqual) throw RuntimeError(RuntimeError::InvalidPropertyValue);
}

Long longOf(const PropertyValue& value) { return plainOf(value).toLong(); }
Boolean booleanOf(const PropertyValue& value) { return std::visit(ToBoolean{}, plainOf(value).value()); }

String stringOf(const PropertyValue& value) { return std::visit(ToString{}, plainOf(value).value()); }

PictureReference pictureOf(const PropertyValue& value) {
  if (const auto* picture = std::get_if<PictureReference>(&value)) return *picture;
  throw RuntimeError(RuntimeError::TypeMismatch);
}

}  // namespace tessaly
