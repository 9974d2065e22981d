#include "tessaly/platform/Core.h"

#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/InPlaceOf.h"

namespace tessaly::platform {
namespace {

Core& inForce() {
  static Core bodies{&ownFiles(),    &ownLocale(),       &ownMessages(),
                     &ownRegistry(), &ownSharedMemory(), &ownXml()};
  return bodies;
}

}  // namespace

const Core& core() { return inForce(); }

Override::Override(Files& body) : restore_(inPlaceOf(inForce().files, body)) {}
Override::Override(Locale& body) : restore_(inPlaceOf(inForce().locale, body)) {}
Override::Override(Messages& body) : restore_(inPlaceOf(inForce().messages, body)) {}
Override::Override(Registry& body) : restore_(inPlaceOf(inForce().registry, body)) {}
Override::Override(SharedMemory& body) : restore_(inPlaceOf(inForce().sharedMemory, body)) {}
Override::Override(Xml& body) : restore_(inPlaceOf(inForce().xml, body)) {}
Override::~Override() { restore_(); }

}  // namespace tessaly::platform
