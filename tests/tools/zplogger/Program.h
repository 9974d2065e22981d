#pragma once

namespace tessaly::tests {

/// What the program writes first, once clients can find it.
inline constexpr const char* kWaiting = "zplogger: waiting for clients as \"ZPLogger server\"";

}  // namespace tessaly::tests
