#include "examples/showcase/StyledText.h"

#include <algorithm>
#include <numeric>

#include "examples/showcase/CodePoints.h"
#include "examples/showcase/DisplayWidth.h"

namespace showcase {
namespace {

constexpr char16_t kRightToLeftIsolate = 0x2067;
constexpr char16_t kPopDirectionalIsolate = 0x2069;

/// Hebrew, Arabic and their kin with their presentation forms, and the old scripts of the second plane.
bool isRightToLeft(char32_t c) {
  return (c >= 0x590 && c <= 0x8FF) || (c >= 0xFB1D && c <= 0xFDFF) || (c >= 0xFE70 && c <= 0xFEFE) ||
         (c >= 0x10800 && c <= 0x10FFF) || (c >= 0x1E800 && c <= 0x1EFFF);
}

bool hasRightToLeft(const Span& span) {
  bool found = false;
  forEachCodePoint(span.text, [&](char32_t c) { found = found || isRightToLeft(c); });
  return found;
}

std::size_t unitsAt(std::u16string_view text, std::size_t place) {
  const bool pair = (text[place] & 0xFC00) == 0xD800 && place + 1 < text.size();
  return pair ? 2 : 1;
}

}  // namespace

StyledText styled(std::u16string_view text, Style style) { return {{tessaly::String(text), style}}; }

StyledText caption(std::u16string_view text) {
  StyledText result = styled(u"");
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool marks = text[i] == u'&' && i + 1 < text.size();
    if (marks) ++i;
    const std::size_t units = unitsAt(text, i);
    const Style style = marks && text[i] != u'&' ? Style::Underlined : Style::Plain;
    if (result.back().style != style) result.push_back({u"", style});
    result.back().text += text.substr(i, units);
    i += units - 1;
  }
  return result;
}

int displayWidth(const StyledText& text) {
  return std::accumulate(text.begin(), text.end(), 0,
                         [](int width, const Span& span) { return width + displayWidth(span.text); });
}

StyledText inItsDirection(StyledText text) {
  if (std::none_of(text.begin(), text.end(), hasRightToLeft)) return text;
  text.front().text.insert(0, 1, kRightToLeftIsolate);
  text.back().text += kPopDirectionalIsolate;
  return text;
}

}  // namespace showcase
