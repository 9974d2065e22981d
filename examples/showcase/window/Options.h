#pragma once

#include <optional>
#include <vector>

#include "tessaly/base/Types.h"

namespace showcase {

/// What the window is started with.
struct Options {
  /// Where the picture goes; empty where the window is to be shown to a user.
  tessaly::String picture;

  /// The number of the language; none for the user's.
  std::optional<tessaly::Long> language;

  /// Whether only the arguments are to be told.
  bool isHelpWanted = false;

  /// What is wrong with the command line, as a whole sentence; empty where nothing is.
  tessaly::String fault;
};

/// Reads the words behind the program's name.
Options optionsOf(const std::vector<tessaly::String>& words);

}  // namespace showcase
