#pragma once

#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"
#include "tessaly/platform/keys/KeyStore.h"

namespace tessaly::platform {

/// Takes a key's path apart at its backslashes; doubled ones count as one, and one may stand at the end.
/// `kBadPathname` where one stands at the beginning. The names point into `path`.
Long splitPath(std::u16string_view path, std::vector<std::u16string_view>& names);

}  // namespace tessaly::platform
