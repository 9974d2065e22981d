#include "tests/support/OwnRuntime.h"

namespace tessaly::tests {

// Blocks and windows are the system's. Tests under Wine have those of the prefix for themselves; elsewhere
// they keep to names of their own.
void useOwnRuntime() {}

}  // namespace tessaly::tests
