#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tessaly-reg/KeyName.h"

namespace tessaly::reg {

enum class Command { None, Query, Add, Delete, Export, Import, Repair };

/// What a command line asks for.
struct Arguments {
  Command command = Command::None;
  bool wantsHelp = false;
  bool wantsVersion = false;

  /// The hive files to work on in place of the user's and the machine's own.
  std::optional<std::string> userFile;
  std::optional<std::string> machineFile;

  KeyName key;
  std::optional<std::string> file;

  /// /v, or /ve, which leaves it empty.
  std::optional<String> valueName;
  std::optional<String> pattern;
  std::optional<platform::RegistryType> type;
  std::optional<String> data;
  std::optional<String> separator;
  bool allValues = false;
  bool subkeysToo = false;
  bool isForced = false;
  bool isPreview = false;
};

/// Takes the words behind the program's name, in UTF-8; file names may be any bytes. Options begin with / or
/// -, in any case. Gives what is wrong, or an empty text.
std::string parseArguments(const std::vector<std::string>& words, Arguments& arguments);

}  // namespace tessaly::reg
