#pragma once

#include <cstdint>

/// What the tests and their peer, a second process, have agreed on.
namespace tessaly::tests {

/// Names of messages that the peer's windows handle.
namespace peer_message {

/// The peer says what has arrived: "got <number> <wParam> <lParam> <sender>". The result is `resultOf`.
inline constexpr const char* kTell = "tessaly.tests.tell";

/// The peer says "holding" and does not return before it reads "release"; the result is 1.
inline constexpr const char* kHold = "tessaly.tests.hold";

/// Sent on to the window of wParam with the own one as wParam and lParam less 1, until that is 0; the result
/// is how often it was handled.
inline constexpr const char* kBounce = "tessaly.tests.bounce";

/// The window goes in its handler; the result is 5.
inline constexpr const char* kVanish = "tessaly.tests.vanish";

/// The process ends in the handler, by itself.
inline constexpr const char* kExit = "tessaly.tests.exit";

}  // namespace peer_message

/// A result that depends on every bit that was sent.
inline std::intptr_t resultOf(std::uintptr_t wParam, std::intptr_t lParam) {
  return static_cast<std::intptr_t>(wParam * 31 + static_cast<std::uintptr_t>(lParam));
}

}  // namespace tessaly::tests
