#pragma once

namespace tessaly::tests {

/// A program that calls this has shared blocks and windows of its own from its start on, where the platform
/// has them in files: no test meets a user's. They go when the program ends.
void useOwnRuntime();

}  // namespace tessaly::tests
