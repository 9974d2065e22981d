#include "tessaly/platform/Registry.h"

#include <pthread.h>

#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/keys/StoredRegistry.h"
#include "tessaly/platform/linux/Hive.h"

namespace tessaly::platform {
namespace {

/// The registry over the machine's and the user's hive. A fork waits until no call is under way, and its
/// child opens the hives anew.
class HiveRegistry {
 public:
  HiveRegistry() {
    pthread_atfork(&HiveRegistry::hold, &HiveRegistry::release, &HiveRegistry::releaseInChild);
  }

  StoredRegistry& calls() { return calls_; }

 private:
  static void hold();
  static void release();
  static void releaseInChild();

  Hive machine_{machineHivePath(), HiveReaders::Everybody};
  Hive user_{userHivePath(), HiveReaders::Owner};
  StoredRegistry calls_{machine_, user_, registryUserName()};
};

HiveRegistry& own() {
  static HiveRegistry registry;
  return registry;
}

void HiveRegistry::hold() { own().calls_.mutex().lock(); }
void HiveRegistry::release() { own().calls_.mutex().unlock(); }

void HiveRegistry::releaseInChild() {
  own().machine_.abandon();
  own().user_.abandon();
  release();
}

}  // namespace

Registry& ownRegistry() { return own().calls(); }

}  // namespace tessaly::platform
