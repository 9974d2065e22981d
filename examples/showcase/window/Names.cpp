#include "examples/showcase/window/Names.h"

#include <algorithm>
#include <array>

#include "examples/showcase/StyledText.h"

namespace showcase {
namespace {

using tessaly::Long;
using tessaly::String;

constexpr std::size_t kKeyInBrackets = 4;

bool endsWithKey(std::u16string_view text) {
  if (text.size() < kKeyInBrackets) return false;
  const auto end = text.substr(text.size() - kKeyInBrackets);
  return end[0] == u'(' && end[1] == u'&' && end[3] == u')';
}

std::u16string_view withoutEnd(std::u16string_view text) {
  while (text.ends_with(u'.') || text.ends_with(u'…') || text.ends_with(u' ')) text.remove_suffix(1);
  return text;
}

}  // namespace

String nameOf(std::u16string_view menuText) {
  menuText = withoutEnd(menuText);
  if (endsWithKey(menuText)) menuText = withoutEnd(menuText.substr(0, menuText.size() - kKeyInBrackets));
  String name;
  for (const Span& span : caption(menuText)) name += span.text;
  return name;
}

bool isWrittenFromRight(Long language) {
  constexpr std::array<Long, 5> fromRight = {0x01, 0x0D, 0x20, 0x29, 0x8C};  // Arabic to Dari
  constexpr Long kPrimary = 0x3FF;
  return std::find(fromRight.begin(), fromRight.end(), language & kPrimary) != fromRight.end();
}

}  // namespace showcase
