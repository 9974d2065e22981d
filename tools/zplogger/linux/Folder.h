#pragma once

#include <string>

#include "tessaly/base/Types.h"
#include "tools/support/linux/Descriptor.h"

namespace tessaly::zplogger {

/// The folder of a file, reached without following a link, and the file's name in it.
struct Place {
  tools::Descriptor folder;
  std::string name;

  /// Why the folder could not be reached; empty where it could.
  std::string fault;
};

/// Walks to the folder of a path that `logPath` has made.
Place placeOf(const String& path);

/// Whether the file is a normal one with one name, of this user, on a disk; the reason where it is not.
/// `Missing` is no fault. Nothing is opened.
struct FileCheck {
  bool isMissing = false;
  std::string fault;
};
FileCheck checkFile(const Place& place);

/// The same for a file that is open.
std::string checkOpenFile(int file);

/// The last error in words.
std::string lastError();

}  // namespace tessaly::zplogger
