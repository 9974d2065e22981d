#pragma once

#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// A text in upper case, unit by unit, by the table that Windows uses for names. The table stays the same
/// with every version of ICU.
String upperCased(std::u16string_view text);

}  // namespace tessaly::platform
