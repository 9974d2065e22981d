#pragma once

#include <string>

#include "tessaly/base/Text.h"
#include "tessaly/forms/PropertyBag.h"
#include "tests/controls/CallLog.h"

namespace tessaly::tests {

/// A bag that writes down what it is asked for, with the default, and what it is given.
class RecordingBag final : public PropertyBag {
 public:
  explicit RecordingBag(CallLog& log) : log_(&log) {}

  PropertyValue ReadProperty(std::u16string_view name, const PropertyValue& defaultValue) const override {
    log_->note("read " + toUtf8(name) + " or " + shownValue(defaultValue));
    return PropertyBag::ReadProperty(name, defaultValue);
  }

  void WriteProperty(std::u16string_view name, const PropertyValue& value,
                     const PropertyValue& defaultValue) override {
    log_->note("write " + toUtf8(name) + " " + shownValue(value) + " or " + shownValue(defaultValue));
    PropertyBag::WriteProperty(name, value, defaultValue);
  }

 private:
  static std::string shownValue(const PropertyValue& value) {
    if (const auto* picture = std::get_if<PictureReference>(&value)) return *picture ? "picture" : "none";
    const auto& plain = std::get<Variant>(value);
    const auto* boolean = std::get_if<Boolean>(&plain.value());
    if (boolean != nullptr) return *boolean ? "True" : "False";
    const auto* text = std::get_if<String>(&plain.value());
    return text != nullptr ? "'" + toUtf8(*text) + "'" : std::to_string(plain.toLong());
  }

  CallLog* log_;
};

}  // namespace tessaly::tests
