#include "tests/contract/HelpWorld.h"

namespace tessaly::tests {

std::vector<Body> RecordingViewer::bodies() { return {Body::Fake}; }

std::unique_ptr<RecordingViewer> RecordingViewer::make() { return nullptr; }

}  // namespace tessaly::tests
