#include "tessaly/hosts/qt/help/HelpAddress.h"

#include <algorithm>
#include <array>

#include "tessaly/base/Ascii.h"

namespace tessaly::qt {
namespace {

constexpr std::array<std::u16string_view, 4> kSchemes{u"mk:@MSITStore:", u"ms-its:", u"ms-itss:", u"its:"};
constexpr std::u16string_view kEnding = u".chm";

bool startsWith(std::u16string_view text, std::u16string_view start) {
  const auto isSame = [](char16_t a, char16_t b) { return asciiLower(a) == asciiLower(b); };
  return text.size() >= start.size() && std::equal(start.begin(), start.end(), text.begin(), isSame);
}

std::u16string_view withoutScheme(std::u16string_view text) {
  const auto* const scheme = std::find_if(kSchemes.begin(), kSchemes.end(),
                                          [&](std::u16string_view s) { return startsWith(text, s); });
  return scheme == kSchemes.end() ? text : text.substr(scheme->size());
}

/// A folder and a topic may have colons too, so those behind the usual ending of a file count first.
std::size_t endOfFile(std::u16string_view text) {
  for (std::size_t at = text.find(u"::"); at != String::npos; at = text.find(u"::", at + 1)) {
    if (at >= kEnding.size() && startsWith(text.substr(at - kEnding.size()), kEnding)) return at;
  }
  const std::size_t atRoot = text.find(u"::/");
  return atRoot != String::npos ? atRoot : text.find(u"::");
}

}  // namespace

HelpAddress helpAddress(std::u16string_view text) {
  const std::u16string_view bare = withoutScheme(text);
  const std::size_t end = endOfFile(bare);
  if (end != String::npos) return {String(bare.substr(0, end)), String(bare.substr(end + 2))};
  return {String(bare.substr(0, bare.find(u'>'))), {}};
}

bool namesArchive(std::u16string_view text) {
  return withoutScheme(text).size() != text.size() || endOfFile(text) != String::npos;
}

}  // namespace tessaly::qt
