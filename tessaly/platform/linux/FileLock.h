#pragma once

#include <sys/file.h>

#include <cerrno>

namespace tessaly::platform {

/// Takes or changes the lock of an open file with flock, and goes on where a signal interrupts; false, with
/// the reason in errno, where it is not granted.
inline bool lockFile(int file, int operation) {
  while (flock(file, operation) != 0) {
    if (errno != EINTR) return false;
  }
  return true;
}

}  // namespace tessaly::platform
