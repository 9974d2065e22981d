#pragma once

namespace tessaly::platform {

/// Closes all descriptors of this process from a number on. It makes plain calls of the system and nothing
/// else, so a process that is a copy of a host with threads may use it.
void closeDescriptorsFrom(int first);

}  // namespace tessaly::platform
