#pragma once

#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

namespace showcase {

enum class Style { Plain, Heading, Faint, Underlined, Good, Bad };

struct Span {
  tessaly::String text;
  Style style;
};

/// A text in parts that look different on a terminal.
using StyledText = std::vector<Span>;

StyledText styled(std::u16string_view text, Style style = Style::Plain);

/// A button's or menu's text as a host draws it: the letter behind the accelerator mark underlined, the mark
/// gone. A doubled mark is one that is to be seen.
StyledText caption(std::u16string_view text);

int displayWidth(const StyledText& text);

/// A text that is written from right to left, set apart from what stands beside it: otherwise a terminal that
/// knows directions would take the next cell for its continuation and put it to the left. Any other text is
/// left as it is.
StyledText inItsDirection(StyledText text);

}  // namespace showcase
