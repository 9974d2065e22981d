#pragma once

#include <optional>
#include <string_view>

#include "tessaly/platform/keys/KeyStore.h"

/// Values as people read and write them.
namespace tessaly::reg {

inline constexpr platform::RegistryType kBigEndianNumber = 5;
inline constexpr platform::RegistryType kLongNumber = 11;

/// REG_SZ and the like; of a type that has no name, its number, such as 0x4d.
String typeName(platform::RegistryType type);

/// A type by its name in any case, or by its number in decimal or 0x form.
std::optional<platform::RegistryType> typeNamed(std::u16string_view text);

/// A value's name, or "(Default)" for the unnamed one.
String shownName(std::u16string_view name);

/// A text without the NUL that ends it, if one does.
std::u16string_view withoutNul(std::u16string_view text);

/// A value's data in one line: texts as they are, several texts with \0 between them, numbers as 0x…, all
/// else as hexadecimal digits.
String shownData(const platform::KeyValue& value);

/// A value from what somebody typed. Without data it is empty, a number 0. `separator` stands between the
/// texts of REG_MULTI_SZ. Where the data does not suit the type, `fault` tells why, and nothing is given.
std::optional<platform::KeyValue> typedValue(platform::RegistryType type, std::u16string_view data,
                                             std::u16string_view separator, std::string& fault);

/// A number without a sign, in decimal or 0x form.
std::optional<std::uint64_t> typedNumber(std::u16string_view text);

}  // namespace tessaly::reg
