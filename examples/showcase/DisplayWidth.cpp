#include "examples/showcase/DisplayWidth.h"

#include <algorithm>

#include "examples/showcase/CodePoints.h"
#include "examples/showcase/WidthRanges.h"

namespace showcase {
namespace {

template <class Ranges>
bool contains(const Ranges& ranges, char32_t c) {
  const auto range = std::lower_bound(ranges.begin(), ranges.end(), c,
                                      [](const CodePointRange& r, char32_t value) { return r.last < value; });
  return range != ranges.end() && range->first <= c;
}

int columnsOf(char32_t c) {
  if (c < 0x20 || contains(kZeroWidth, c)) return 0;
  return contains(kDoubleWidth, c) ? 2 : 1;
}

}  // namespace

int displayWidth(std::u16string_view text) {
  int width = 0;
  forEachCodePoint(text, [&](char32_t c) { width += columnsOf(c); });
  return width;
}

}  // namespace showcase
