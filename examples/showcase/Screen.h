#pragma once

#include "examples/showcase/StyledText.h"

namespace showcase {

/// Where the showcase writes: a terminal with styles, or anything else without.
class Screen {
 public:
  explicit Screen(bool showsStyles) : showsStyles_(showsStyles) {}

  /// Writes one line.
  void line(const StyledText& text = {}) const;
  void line(std::u16string_view text, Style style = Style::Plain) const { line(styled(text, style)); }

 private:
  bool showsStyles_;
};

}  // namespace showcase
