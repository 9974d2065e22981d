#include "tests/support/OwnSettings.h"

namespace tessaly::tests {

// The registry is the system's. Under Wine it belongs to the tests' own prefix; elsewhere tests keep to keys
// of their own, which they remove.
void useOwnSettings() {}

}  // namespace tessaly::tests
