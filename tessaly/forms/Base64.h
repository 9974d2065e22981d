#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly {

/// Bytes as text of A to Z, a to z, 0 to 9, + and /, four for each three bytes; the last four are filled up
/// with =.
String base64Of(std::string_view bytes);

/// The way back; nothing where a text is not what `base64Of` gives.
std::optional<std::string> bytesOfBase64(std::u16string_view text);

}  // namespace tessaly
