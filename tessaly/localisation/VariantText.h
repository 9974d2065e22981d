#pragma once

#include <string_view>

#include "tessaly/base/Variant.h"

namespace tessaly {

/// A value's ordinary text, for as long as this object and the value live: "True" and "False", decimal
/// digits, a floating number with the user's decimal separator, a text as it is. Making it of an infinite
/// value or of what is no number raises error 6.
class VariantText {
 public:
  explicit VariantText(const Variant& value);
  VariantText(const VariantText&) = delete;
  VariantText& operator=(const VariantText&) = delete;

  std::u16string_view view() const { return view_; }

 private:
  String made_;
  std::u16string_view view_;
};

/// A number's decimal digits.
String decimal(Long number);

}  // namespace tessaly
