#include "tools/zplogger/LogPath.h"

#include <algorithm>
#include <vector>

namespace tessaly::zplogger {
namespace {

/// The names between the slashes. ".." takes the name before it away: no link is followed on the way, so that
/// is where it leads.
std::vector<std::u16string_view> namesOf(std::u16string_view text) {
  std::vector<std::u16string_view> names;
  while (!text.empty()) {
    const std::u16string_view name = text.substr(0, text.find(u'/'));
    text.remove_prefix(std::min(name.size() + 1, text.size()));
    if (name == u"..") {
      if (!names.empty()) names.pop_back();
    } else if (!name.empty() && name != u".") {
      names.push_back(name);
    }
  }
  return names;
}

bool endsAsFolder(std::u16string_view text) {
  const std::u16string_view last = text.substr(text.rfind(u'/') + 1);
  return last.empty() || last == u"." || last == u"..";
}

LogPath refused(const char* why) { return {{}, {}, why}; }

}  // namespace

LogPath logPath(std::u16string_view text) {
  if (text.empty()) return {};
  if (!text.starts_with(u'/')) return refused("it is no absolute path");
  if (text.find(u'\0') != std::u16string_view::npos) return refused("its name has a NUL in it");
  if (endsAsFolder(text)) return refused("it is a folder");
  LogPath result;
  for (const std::u16string_view name : namesOf(text)) result.path.append(u"/").append(name);
  result.key = result.path;
  return result;
}

}  // namespace tessaly::zplogger
