#include "tessaly/platform/BufferText.h"

#include <algorithm>
#include <string>

#include "tessaly/platform/Ansi.h"

namespace tessaly::platform {
namespace {

constexpr unsigned char kFirstOther = 0x80;

bool isControl(char c) { return static_cast<unsigned char>(c) < ' '; }

/// A byte that is the same character in every code page, wherever it stands behind such bytes.
bool isPlain(char c) { return !isControl(c) && static_cast<unsigned char>(c) < kFirstOther; }

bool cuts(char16_t c) { return c < u' ' || isNegativeAnsi(c); }

}  // namespace

BufferText::BufferText(std::string_view front, std::size_t bufferSize) {
  const auto* const other = std::find_if_not(front.begin(), front.end(), isPlain);
  if (other == front.end() || isControl(*other)) {
    text = String(front.begin(), other);
    isCut = other != front.end();
    return;
  }
  text = front.size() < bufferSize ? fromAnsi(std::string(front) + ' ') : fromAnsi(front);
  const auto cut = std::find_if(text.begin(), text.end(), cuts);
  isCut = cut != text.end();
  text.erase(cut, text.end());
}

}  // namespace tessaly::platform
