#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The lines of a soak of tracing: each tells whose it is and which, and bears a sum by which it shows
/// whether it is whole.
namespace tessaly::soak {

struct LineId {
  unsigned client = 0;

  /// From 1 on.
  std::uint64_t number = 0;
  bool operator==(const LineId&) const = default;
};

/// The most that a record holds.
inline constexpr std::size_t kLongest = 4986;

/// The line's text, the same each time: ASCII letters, digits and single blanks. Most are short, one in 64 is
/// of any length and one in 1024 as long as can be.
std::string lineText(const LineId& id);

/// Which line a text is; nothing where it is none, or parts of several.
std::optional<LineId> wholeLine(std::string_view text);

}  // namespace tessaly::soak
