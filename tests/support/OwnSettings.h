#pragma once

namespace tessaly::tests {

/// A program that calls this has settings of its own from its start on, where the platform has them in files:
/// no test touches a user's or the machine's. They go when the program ends.
void useOwnSettings();

}  // namespace tessaly::tests
