#pragma once

#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// What a call has put at the front of an 8-bit buffer of blanks, as wide text: up to its first character
/// whose ANSI code, as a signed 16-bit number, is below 32. The blanks behind the front are left out: a
/// lead byte at its end would take the first of them in, but alone it becomes the same unknown character.
struct BufferText {
  explicit BufferText(std::string_view front);

  String text;
  bool isCut = false;
};

}  // namespace tessaly::platform
