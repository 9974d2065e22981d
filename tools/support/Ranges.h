#pragma once

#include <algorithm>
#include <array>

namespace tessaly::tools {

/// Characters from the first to the last one.
struct Range {
  char32_t first;
  char32_t last;
};

template <std::size_t Size>
bool isIn(const std::array<Range, Size>& ranges, char32_t c) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [c](const Range& range) { return c >= range.first && c <= range.last; });
}

}  // namespace tessaly::tools
