#pragma once

#include <concepts>
#include <string_view>
#include <variant>

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"

namespace tessaly {

/// A value whose type shows at run time: a Boolean, a number of 16 or 32 bits, a floating number or a text.
/// The kinds are kept apart; how one reads as text depends on the locale and is made where the text is used.
class TESSALY_API Variant {
 public:
  using Value = std::variant<Boolean, std::int16_t, Long, double, String>;

  Variant(Boolean value) : value_(value) {}
  Variant(std::int16_t value) : value_(value) {}
  Variant(Long value) : value_(value) {}
  Variant(double value) : value_(value) {}
  Variant(String value) : value_(std::move(value)) {}
  Variant(std::u16string_view value) : value_(String(value)) {}
  Variant(const char16_t* value) : value_(String(value)) {}
  template <std::same_as<bool> B>
  Variant(B value) : value_(Boolean(value)) {}
  Variant(const char*) = delete;
  Variant(std::nullptr_t) = delete;

  const Value& value() const { return value_; }

  /// The same kind and the same value.
  bool operator==(const Variant& other) const = default;

  /// The value as a number: a Boolean's own number, the nearest integer for a floating number, the number
  /// that a text holds. Raises error 13 where a text is no number, and error 6 outside 32 bits.
  Long toLong() const;

 private:
  Value value_;
};

}  // namespace tessaly
