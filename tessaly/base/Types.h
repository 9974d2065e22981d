#pragma once

#include <concepts>
#include <cstdint>
#include <string>

namespace tessaly {

/// A signed number of 32 bits.
using Long = std::int32_t;

/// Wide text, in UTF-16.
using String = std::u16string;

/// A truth value in two bytes: -1 is true, 0 is false, and any other number counts as true.
/// From a `bool` it takes -1 or 0, from an integer the low 16 bits as they are given.
class Boolean {
 public:
  constexpr Boolean() = default;
  template <std::same_as<bool> B>
  constexpr Boolean(B value) : value_(value ? -1 : 0) {}
  template <std::integral I>
  requires(!std::same_as<I, bool>) constexpr Boolean(I value) : value_(static_cast<std::int16_t>(value)) {}

  /// The number itself, which also serves every test.
  constexpr operator std::int16_t() const { return value_; }

 private:
  std::int16_t value_ = 0;
};

inline constexpr Boolean True{true};
inline constexpr Boolean False{false};

}  // namespace tessaly
