#pragma once

#include <string_view>

#include "tessaly/base/Types.h"

namespace showcase {

/// A text with small letters for the capitals of Latin (but for rare ones), Greek and Cyrillic, to be held
/// against another one.
tessaly::String folded(std::u16string_view text);

}  // namespace showcase
