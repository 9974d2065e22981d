#pragma once

#include <array>
#include <string_view>

#include "tessaly/base/Types.h"
#include "tessaly/localisation/BuiltInStrings.h"

namespace showcase {

/// What a catalogue makes of one language file when it is asked to.
struct LoadedFile {
  bool readable = false;

  /// Whether the file stands in the list of languages, and as what; no name or 0 where the file is broken.
  bool listed = false;
  tessaly::String name;
  tessaly::Long number = 0;

  /// The texts that the file gives, in slot order; empty where it gives none.
  std::array<tessaly::String, tessaly::kStringCount> texts;

  tessaly::String reportFontName;
  tessaly::String gridFontName;
  tessaly::Long gridFontSize = 0;
  tessaly::String mailFontName;
};

/// Loads a file as if it were the only one in the folder of the languages.
LoadedFile loadAlone(std::u16string_view path);

}  // namespace showcase
