#pragma once

#include <cstddef>
#include <functional>
#include <string>

/// Calls that hand one line to somebody else. Most of them end when another process has answered, and how
/// long that takes depends more on what the processors did just before than on the call. So all contestants
/// take turns of a few calls, in an order that changes each time.
namespace tessaly::bench {

/// Without a function to send with it takes no part.
struct LineSender {
  std::function<void()> send;

  /// How many lines have arrived, where somebody counts them.
  std::function<std::size_t()> arrived;
};

/// A line as a host might write it, for everybody the same.
inline constexpr const char* kLine = "Opened the document, 3 pages, 17 fields";

/// Lets a contestant take part; it is opened anew for each seating.
void addLineSender(const std::string& name, const std::function<LineSender()>& open);

}  // namespace tessaly::bench
