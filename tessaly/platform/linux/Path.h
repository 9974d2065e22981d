#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"

/// Paths between the library's wide text and the bytes that Linux has. Bytes that are no UTF-8 travel as the
/// lone surrogates DC80 to DCFF, so every path finds its way back.
namespace tessaly::platform {

/// The bytes of a path, or nothing where it holds a NUL, which no path has.
TESSALY_API std::optional<std::string> pathBytes(std::u16string_view path);

String pathText(std::string_view bytes);

}  // namespace tessaly::platform
