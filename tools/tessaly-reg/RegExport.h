#pragma once

#include "tools/tessaly-reg/Keys.h"
#include "tools/tessaly-reg/RegText.h"

namespace tessaly::reg {

/// What an export has found.
struct Exported {
  String text;
  std::size_t keys = 0;
  std::size_t values = 0;

  /// The name that a .reg file can't hold, in the key that `culprit` tells; empty where there is none.
  String badName;
  String culprit;
};

/// Which names an export takes.
enum class ExportNames {
  /// All that a .reg file can hold.
  All,
  /// Those alone that a terminal shows as they are, and UTF-8 has.
  Showable
};

/// A key with all below it as the text of a .reg file. Gives a number of `registry_result`.
Long exportTree(const Keys& keys, const FoundKey& key, ExportNames names, std::u16string_view lineEnd,
                Exported& exported);

}  // namespace tessaly::reg
