#pragma once

#include <string>
#include <string_view>

#include "examples/support/Console.h"
#include "tessaly/base/Text.h"

namespace examples {

inline tessaly::String textOf(std::u16string_view text) { return tessaly::String(text); }
inline tessaly::String textOf(tessaly::Long number) { return tessaly::fromUtf8(std::to_string(number)); }

/// Writes its arguments, texts and numbers, as one line.
template <class... Parts>
void printLine(const Parts&... parts) {
  write((textOf(parts) + ... + u"\n"));
}

}  // namespace examples
