#pragma once

#include <unistd.h>

#include <array>
#include <cinttypes>
#include <cstdio>
#include <filesystem>
#include <string>

#include "tessaly/base/Fnv.h"

namespace tessaly::tests {

/// What the files of a channel's blocks have before their own names, as the format has it.
inline std::string frontOfBlocks(const std::filesystem::path& channel) {
  std::array<char, 64> front{};
  std::snprintf(front.data(), front.size(), "tessaly-%u-%016" PRIx64 "-", geteuid(), fnv64(channel.string()));
  return front.data();
}

}  // namespace tessaly::tests
