#pragma once

#include <optional>
#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::tools {

/// UTF-8 as wide text, or nothing where a byte of it is no UTF-8.
std::optional<String> strictUtf8(std::string_view bytes);

/// Where the first byte stands that is no UTF-8; the text's size where there is none.
std::size_t firstFaultOf(std::string_view bytes);

/// Whether a wide text has no half of a surrogate pair alone.
bool hasWholePairs(std::u16string_view text);

}  // namespace tessaly::tools
