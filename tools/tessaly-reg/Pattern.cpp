#include "tools/tessaly-reg/Pattern.h"

#include <algorithm>

#include "tessaly/platform/Core.h"

namespace tessaly::reg {
namespace {

constexpr char16_t kAny = u'*';
constexpr char16_t kOne = u'?';

/// What stands between two stars occurs as early as it can; that leaves most for the rest.
std::size_t find(std::u16string_view text, std::u16string_view piece, std::size_t from) {
  for (std::size_t at = from; at + piece.size() <= text.size(); ++at) {
    std::size_t same = 0;
    while (same < piece.size() && (piece[same] == kOne || piece[same] == text[at + same])) ++same;
    if (same == piece.size()) return at;
  }
  return std::u16string_view::npos;
}

}  // namespace

Pattern::Pattern(std::u16string_view text) : upper_(platform::core().locale->CharUpperW(text)) {}

bool Pattern::isIn(std::u16string_view text) const {
  const String upper = platform::core().locale->CharUpperW(text);
  std::size_t at = 0;
  for (std::u16string_view rest = upper_; !rest.empty();) {
    const std::u16string_view piece = rest.substr(0, rest.find(kAny));
    at = find(upper, piece, at);
    if (at == std::u16string_view::npos) return false;
    at += piece.size();
    rest.remove_prefix(std::min(piece.size() + 1, rest.size()));
  }
  return true;
}

}  // namespace tessaly::reg
