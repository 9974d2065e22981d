#include "tests/support/Platform.h"

namespace tessaly::tests {

bool underWine() { return false; }

}  // namespace tessaly::tests
