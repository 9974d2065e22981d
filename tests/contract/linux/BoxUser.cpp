#include "tests/contract/BoxUser.h"

namespace tessaly::tests {

std::unique_ptr<BoxUser> BoxUser::make() { return nullptr; }

}  // namespace tessaly::tests
