#pragma once

#include <optional>

#include "tessaly/platform/Registry.h"

namespace tessaly::platform {

/// Whether it matters to a request if the key can be written.
bool asksForWriting(RegistryAccess asked);

/// The rights that a caller gets who asks for some, or nothing where what he asks for needs writing and
/// nothing can be written.
std::optional<RegistryAccess> grantedAccess(RegistryAccess asked, bool isWritable);

}  // namespace tessaly::platform
