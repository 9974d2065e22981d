#pragma once

#include <optional>
#include <string_view>

#include "tessaly/base/Types.h"

namespace showcase {

/// The number that a text is, of digits alone; none for any other text and for what is too large.
std::optional<tessaly::Long> numberOf(std::u16string_view text);

}  // namespace showcase
