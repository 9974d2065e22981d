#pragma once

#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly {

/// The number in an element of a language file, a fraction brought to the nearest integer. Takes '.' and the
/// user's decimal separator. Raises error 13 where the text is no number and error 6 outside 32 bits.
Long textToLong(std::u16string_view text);

}  // namespace tessaly
