#pragma once

#include <string>
#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::zplogger {

/// Where a client wants its lines to be. Two paths that lead to one file by their names have equal keys.
struct LogPath {
  /// In the platform's plain form; empty where it is refused or none was named.
  String path;
  String key;

  /// Why it is refused; empty where it is not.
  std::string fault;
};

/// Takes an absolute path of the platform that can lead to a file. Looks at the text alone.
LogPath logPath(std::u16string_view text);

}  // namespace tessaly::zplogger
