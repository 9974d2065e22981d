#include "tessaly/platform/keys/KeyLimits.h"

#include <algorithm>

#include "tessaly/base/Unicode.h"

namespace tessaly::platform {

using namespace registry_result;

namespace {

/// Whether each surrogate has its partner.
bool isSound(std::u16string_view name) {
  while (!name.empty()) {
    const auto front = unicode::frontOf(name);
    if (!front) return false;
    name.remove_prefix(front->units);
  }
  return true;
}

}  // namespace

Long checkPath(KeyPath path) {
  const bool fits = path.size() <= kDeepestPath && std::all_of(path.begin(), path.end(), [](auto name) {
                      return name.size() <= kLongestKeyName && isSound(name);
                    });
  return fits ? kSuccess : kInvalidParameter;
}

Long checkValueName(std::u16string_view name) {
  return name.size() <= kLongestValueName && isSound(name) ? kSuccess : kInvalidParameter;
}

Long checkValue(const KeyValue& value) { return value.size() <= kLargestValue ? kSuccess : kNoResources; }

}  // namespace tessaly::platform
