#pragma once

#include <chrono>
#include <filesystem>

#include "tessaly/platform/Registry.h"
#include "tessaly/platform/linux/Descriptor.h"

namespace tessaly::platform {

/// A writer's turn at a hive. Whoever waits holds the turn, so one that has just written can't go again
/// before it. A process that dies lets go.
class HiveLock {
 public:
  /// Waits for its turn until `end`. The file beside the hive is made with the mode where it is missing, for
  /// the hive's owner.
  HiveLock(const std::filesystem::path& hive, unsigned mode, std::chrono::steady_clock::time_point end);

  /// `kSuccess` while the turn is held, `kBusy` where it did not come, or why there is nothing to hold.
  Long failure() const { return failure_; }

 private:
  Descriptor file_;
  Long failure_ = registry_result::kSuccess;
};

}  // namespace tessaly::platform
