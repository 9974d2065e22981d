#include "tessaly/hosts/qt/help/PagePath.h"

#include <algorithm>

#include "tessaly/base/Ascii.h"
#include "tessaly/base/Text.h"

namespace tessaly::qt {
namespace {

/// The byte that an escape at this place stands for, or -1.
int escapedByte(std::u16string_view text, std::size_t at) {
  if (text[at] != u'%' || text.size() - at < 3) return -1;
  const std::uint32_t high = hexDigitValue(text[at + 1]);
  const std::uint32_t low = hexDigitValue(text[at + 2]);
  return high > 15 || low > 15 ? -1 : static_cast<int>(high * 16 + low);
}

PageReference splitAt(std::u16string_view text, std::size_t at) {
  if (at == String::npos) return {String(text), {}};
  return {String(text.substr(0, at)), String(text.substr(at + 1))};
}

void addReadings(std::vector<PageReference>& found, std::u16string_view text) {
  const auto add = [&](PageReference reading) {
    if (std::find(found.begin(), found.end(), reading) == found.end()) found.push_back(std::move(reading));
  };
  const std::size_t afterPage = text.find(u".html#");
  if (afterPage != String::npos) add(splitAt(text, afterPage + 5));
  add(splitAt(text, String::npos));
  add(splitAt(text, text.find(u'#')));
  add(splitAt(text, text.rfind(u'#')));
  // Behind these stand what a page would have told a server, and the name of a window.
  PageReference shorter = splitAt(text, text.find(u'#'));
  shorter.page.resize(std::min(shorter.page.size(), shorter.page.find_first_of(u"?>")));
  add(std::move(shorter));
}

}  // namespace

String tidyPath(std::u16string_view path) {
  String tidy;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of(u"/\\"), path.size());
    const std::u16string_view part = path.substr(0, end);
    path.remove_prefix(std::min(end + 1, path.size()));
    if (part == u"..") {
      const std::size_t slash = tidy.rfind(u'/');
      tidy.resize(slash == String::npos ? 0 : slash);
    } else if (!part.empty() && part != u".") {
      if (!tidy.empty()) tidy += u'/';
      tidy += part;
    }
  }
  return tidy;
}

String percentDecoded(std::u16string_view text) {
  String decoded;
  for (std::size_t at = 0; at < text.size();) {
    std::string bytes;
    for (int byte = 0; at < text.size() && (byte = escapedByte(text, at)) >= 0; at += 3) {
      bytes += static_cast<char>(byte);
    }
    decoded += fromUtf8(bytes);
    if (at < text.size()) decoded += text[at++];
  }
  return decoded;
}

std::vector<PageReference> readings(std::u16string_view reference) {
  std::vector<PageReference> found;
  addReadings(found, reference);
  if (reference.find(u'%') != String::npos) addReadings(found, percentDecoded(reference));
  return found;
}

}  // namespace tessaly::qt
