#pragma once

#include <array>
#include <string_view>

#include "tessaly/base/Export.h"

namespace tessaly {

/// How many texts a catalogue has. No language file and no host changes it.
inline constexpr int kStringCount = 175;

/// A host's built-in English texts, in slot order. A host keeps its table for as long as its catalogues live.
using BuiltInStrings = std::array<std::u16string_view, kStringCount>;

/// The table of the showcase, a small report browser.
TESSALY_API extern const BuiltInStrings showcaseStrings;

}  // namespace tessaly
