#include "examples/showcase/Screen.h"

#include "examples/support/Console.h"

namespace showcase {
namespace {

std::u16string_view beginOf(Style style) {
  switch (style) {
    case Style::Heading:
      return u"\x1b[1m";
    case Style::Faint:
      return u"\x1b[2m";
    case Style::Underlined:
      return u"\x1b[4m";
    case Style::Good:
      return u"\x1b[32m";
    case Style::Bad:
      return u"\x1b[31m";
    case Style::Plain:
      break;
  }
  return {};
}

constexpr std::u16string_view kEnd = u"\x1b[0m";

}  // namespace

void Screen::line(const StyledText& text) const {
  tessaly::String line;
  for (const Span& span : text) {
    const std::u16string_view begin = showsStyles_ ? beginOf(span.style) : std::u16string_view();
    line += begin;
    line += span.text;
    if (!begin.empty()) line += kEnd;
  }
  line += u'\n';
  examples::write(line);
}

}  // namespace showcase
