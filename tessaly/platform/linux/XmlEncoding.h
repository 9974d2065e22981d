#pragma once

#include <optional>
#include <string>

namespace tessaly::platform {

/// An XML document's bytes in UTF-8 without a byte-order mark, whatever encoding they declare. Nothing where
/// the encoding is unknown or the bytes are not of it. UTF-8 itself is passed through as it is.
std::optional<std::string> xmlInUtf8(std::string bytes);

}  // namespace tessaly::platform
