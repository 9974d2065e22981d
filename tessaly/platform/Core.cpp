#include "tessaly/platform/Core.h"

#include "tessaly/platform/Bodies.h"

namespace tessaly::platform {
namespace {

Core& inForce() {
  static Core bodies{&ownFiles(),    &ownLocale(),       &ownMessages(),
                     &ownRegistry(), &ownSharedMemory(), &ownXml()};
  return bodies;
}

}  // namespace

const Core& core() { return inForce(); }

Override::Override(Files& body) : before_(core()) { inForce().files = &body; }
Override::Override(Locale& body) : before_(core()) { inForce().locale = &body; }
Override::Override(Messages& body) : before_(core()) { inForce().messages = &body; }
Override::Override(Registry& body) : before_(core()) { inForce().registry = &body; }
Override::Override(SharedMemory& body) : before_(core()) { inForce().sharedMemory = &body; }
Override::Override(Xml& body) : before_(core()) { inForce().xml = &body; }
Override::~Override() { inForce() = before_; }

}  // namespace tessaly::platform
