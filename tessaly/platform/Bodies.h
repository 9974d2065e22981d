#pragma once

#include "tessaly/platform/Files.h"
#include "tessaly/platform/Locale.h"
#include "tessaly/platform/Messages.h"
#include "tessaly/platform/Registry.h"
#include "tessaly/platform/SharedMemory.h"
#include "tessaly/platform/Xml.h"

/// The platform's own bodies, one factory each. Which folder answers is the build's choice.
namespace tessaly::platform {

Files& ownFiles();
Locale& ownLocale();
Messages& ownMessages();
Registry& ownRegistry();
SharedMemory& ownSharedMemory();
Xml& ownXml();

}  // namespace tessaly::platform
