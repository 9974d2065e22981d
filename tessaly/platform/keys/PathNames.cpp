#include "tessaly/platform/keys/PathNames.h"

#include <algorithm>

namespace tessaly::platform {

Long splitPath(std::u16string_view path, std::vector<std::u16string_view>& names) {
  constexpr char16_t divider = u'\\';
  if (path.starts_with(divider)) return registry_result::kBadPathname;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find(divider), path.size());
    if (end != 0) names.push_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return registry_result::kSuccess;
}

}  // namespace tessaly::platform
