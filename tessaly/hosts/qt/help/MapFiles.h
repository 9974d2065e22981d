#pragma once

#include <optional>
#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::qt {

/// The sources of a table of map numbers, which some archives hold in its place: lines such as
/// "#define IDH_OPEN 100" in one text, and "IDH_OPEN=open.html" in another, or in the same.

/// The name that a text gives to a number.
std::optional<String> nameOfNumber(std::u16string_view text, Long number);

/// The page that a text gives to a name.
std::optional<String> pageOfName(std::u16string_view text, std::u16string_view name);

}  // namespace tessaly::qt
