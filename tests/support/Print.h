#pragma once

#include <ostream>
#include <string>

#include "tessaly/base/Text.h"
#include "tessaly/base/Types.h"

/// How GoogleTest shows the library's values.
namespace tessaly {

inline void PrintTo(Boolean value, std::ostream* out) { *out << static_cast<std::int16_t>(value); }

}  // namespace tessaly

namespace tessaly::tests {

/// UTF-8, which a failing comparison shows readably.
inline std::string shown(std::u16string_view text) { return toUtf8(text); }

}  // namespace tessaly::tests
