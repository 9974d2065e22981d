#pragma once

#include <cstddef>
#include <string>

namespace tessaly::reg {

/// "1 key", "3 keys".
inline std::string counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

}  // namespace tessaly::reg
