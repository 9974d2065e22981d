#include "tests/contract/BoxUser.h"

namespace tessaly::tests {

std::vector<Body> BoxUser::bodies() { return {Body::Fake}; }

std::unique_ptr<BoxUser> BoxUser::make() { return nullptr; }

}  // namespace tessaly::tests
