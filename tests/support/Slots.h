#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tessaly::tests {

/// The place of a virtual operation in its class's table, from 0. The compilers that build the library keep a
/// pointer to such a member as one more than the place's offset in bytes.
template <class Member>
std::size_t slotOf(Member member) {
  std::uintptr_t offset = 0;
  static_assert(sizeof member >= sizeof offset);
  std::memcpy(&offset, &member, sizeof offset);
  return (offset - 1) / sizeof(void*);
}

}  // namespace tessaly::tests
