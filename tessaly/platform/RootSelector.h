#pragma once

#include <array>
#include <cstdint>

#include "tessaly/platform/Registry.h"

namespace tessaly::platform {

/// The predefined key that a small number stands for, or 0 where it is none of 0 to 4.
inline Long rootOf(Long selector) {
  constexpr std::array<RegistryKey, 5> kRoots = {kLocalMachine, kUsers, kCurrentUser, kCurrentConfig,
                                                 kClassesRoot};
  const auto place = static_cast<std::uint32_t>(selector);
  return place < kRoots.size() ? static_cast<Long>(kRoots[place]) : 0;
}

}  // namespace tessaly::platform
