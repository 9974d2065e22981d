#pragma once

#include <chrono>
#include <string>

#include "tessaly/platform/linux/Descriptor.h"

namespace tessaly::platform {

/// A writer's turn at a hive. Whoever waits holds the turn, so one that has just written can't go again
/// before it. A process that dies lets go.
class HiveLock {
 public:
  /// Waits its turn, no longer than told; the file is made with the mode where it is missing.
  HiveLock(const std::string& path, unsigned mode, std::chrono::milliseconds longest);

  /// Whether there could be a file to lock.
  bool isOpen() const { return file_.isOpen(); }
  bool isHeld() const { return held_; }

 private:
  Descriptor file_;
  bool held_ = false;
};

}  // namespace tessaly::platform
