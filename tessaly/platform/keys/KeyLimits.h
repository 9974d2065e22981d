#pragma once

#include "tessaly/platform/keys/KeyStore.h"

/// How large names and values may be. What is larger is refused before it comes to a store.
namespace tessaly::platform {

inline constexpr std::size_t kLongestKeyName = 255;
inline constexpr std::size_t kLongestValueName = 16383;
inline constexpr std::size_t kDeepestPath = 512;
inline constexpr std::size_t kLargestValue = 1 << 20;

/// `kInvalidParameter` for a name that is too long or has half of a surrogate pair, `kNoResources` for too
/// large a value, else `kSuccess`.
Long checkPath(KeyPath path);
Long checkValueName(std::u16string_view name);
Long checkValue(const KeyValue& value);

}  // namespace tessaly::platform
