#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <variant>

#include "tessaly/base/Types.h"
#include "tessaly/forms/PropertyBag.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

enum class ValueType { TruthValue, Integer16, Integer32, Float32, Colour, PictureObject, Text };

/// What a property is where a bag has nothing of it; no value stands for no picture.
using PropertyDefault = std::variant<std::monostate, bool, Long, std::u16string_view>;

/// One property of a control, as its bag, a designer and a script know it.
struct PropertyRow {
  std::u16string_view name;

  /// The places of the reading and of the assigning operation among the class's operations, from 0.
  int readSlot;
  int assignSlot;

  /// The number by which a script finds it.
  Long dispatchNumber;
  ValueType type;

  /// Empty for one that is not kept.
  std::u16string_view bagKey;
  PropertyDefault defaultValue;

  /// What a designer shows; both may be empty.
  std::u16string_view description;
  std::u16string_view category;

  constexpr bool booleanDefault() const { return std::get<bool>(defaultValue); }
  constexpr Long longDefault() const { return std::get<Long>(defaultValue); }
  constexpr std::u16string_view textDefault() const { return std::get<std::u16string_view>(defaultValue); }
};

/// An argument of an event, which the host may change.
struct EventArgument {
  std::u16string_view name;
  ValueType type;
};

struct EventRow {
  Long number;
  std::u16string_view name;
  std::span<const EventArgument> arguments;
};

/// The row of a name, found while the program is compiled; a name without a row does not compile.
template <std::size_t Size>
consteval const PropertyRow& rowOf(const std::array<PropertyRow, Size>& table, std::u16string_view name) {
  return *std::find_if(table.begin(), table.end(), [&](const PropertyRow& row) { return row.name == name; });
}

/// The row's default as a bag has values.
TESSALY_DESKTOP_API PropertyValue defaultOf(const PropertyRow& row);

/// Reads and writes a property under its key and with its default; errors as the bag's.
TESSALY_DESKTOP_API PropertyValue readProperty(const PropertyBag& bag, const PropertyRow& row);
TESSALY_DESKTOP_API void writeProperty(PropertyBag& bag, const PropertyRow& row, const PropertyValue& value);

}  // namespace tessaly
