#pragma once

#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::reg {

/// A text to look for in others, in any case. In it * stands for any characters and ? for one.
class Pattern {
 public:
  explicit Pattern(std::u16string_view text);

  /// Whether it occurs anywhere in a text.
  bool isIn(std::u16string_view text) const;

 private:
  String upper_;
};

}  // namespace tessaly::reg
