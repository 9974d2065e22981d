#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly::zplogger {

enum class ColourChoice { Automatic, Always, Never };

/// What a command line asks for.
struct Arguments {
  bool wantsHelp = false;
  bool wantsVersion = false;
  std::uint8_t level = 0;
  String text;

  /// In bytes.
  std::uint64_t maxSize = std::uint64_t{1} << 20U;
  bool writesLogs = true;
  ColourChoice colour = ColourChoice::Automatic;
};

/// Takes the words behind the program's name, in UTF-8. Gives what is wrong, or an empty text.
std::string parseArguments(const std::vector<std::string>& words, Arguments& arguments);

}  // namespace tessaly::zplogger
