#include "tessaly/platform/BufferText.h"

#include <algorithm>

#include "tessaly/platform/Ansi.h"

namespace tessaly::platform {
namespace {

bool isControl(char c) { return static_cast<unsigned char>(c) < ' '; }

/// A byte that is the same character in every code page, wherever it stands behind such bytes.
bool isPlain(char c) { return !isControl(c) && static_cast<unsigned char>(c) < kFirstNotAscii; }

/// To look at a character's bytes makes a text of them, so a code page that never cuts is asked once and not
/// for each.
String::const_iterator cutOf(const String& text) {
  const bool pageMayCut = mayHaveNegativeAnsi();
  return std::find_if(text.begin(), text.end(),
                      [=](char16_t c) { return c < u' ' || (pageMayCut && isNegativeAnsi(c)); });
}

}  // namespace

BufferText::BufferText(std::string_view front) {
  const auto* const other = std::find_if_not(front.begin(), front.end(), isPlain);
  if (other == front.end() || isControl(*other)) {
    text = String(front.begin(), other);
    isCut = other != front.end();
    return;
  }
  text = fromAnsi(front);
  const auto cut = cutOf(text);
  isCut = cut != text.end();
  text.erase(cut, text.end());
}

}  // namespace tessaly::platform
