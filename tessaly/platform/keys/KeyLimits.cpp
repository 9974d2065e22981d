#include "tessaly/platform/keys/KeyLimits.h"

#include <algorithm>

namespace tessaly::platform {

using namespace registry_result;

Long checkPath(KeyPath path) {
  const bool fits = path.size() <= kDeepestPath && std::all_of(path.begin(), path.end(), [](auto name) {
                      return name.size() <= kLongestKeyName;
                    });
  return fits ? kSuccess : kInvalidParameter;
}

Long checkValueName(std::u16string_view name) {
  return name.size() <= kLongestValueName ? kSuccess : kInvalidParameter;
}

Long checkValue(const KeyValue& value) {
  const std::size_t size = value.isText() ? value.text.size() * sizeof(char16_t) : value.bytes.size();
  return size <= kLargestValue ? kSuccess : kNoResources;
}

}  // namespace tessaly::platform
