#pragma once

#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// What a call has put at the front of an 8-bit buffer of blanks, as wide text: up to its first character
/// whose ANSI code, as a signed 16-bit number, is below 32. Where none is, the text may have one of the
/// buffer's blanks at its end, or have taken it in: a lead byte without its trail byte takes what follows.
struct BufferText {
  BufferText(std::string_view front, std::size_t bufferSize);

  String text;
  bool isCut = false;
};

}  // namespace tessaly::platform
