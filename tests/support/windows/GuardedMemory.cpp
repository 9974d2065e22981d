#include "tests/support/GuardedMemory.h"

#include <windows.h>

#include <new>

namespace tessaly::tests {
namespace {

constexpr std::size_t kPage = 4096;

}  // namespace

GuardedMemory::GuardedMemory(std::size_t size)
    : usable_((size + kPage - 1) / kPage * kPage), before_(usable_ - size) {
  pages_ =
      static_cast<char*>(VirtualAlloc(nullptr, usable_ + kPage, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
  DWORD before = 0;
  if (pages_ == nullptr || !VirtualProtect(pages_ + usable_, kPage, PAGE_NOACCESS, &before))
    throw std::bad_alloc();
}

GuardedMemory::~GuardedMemory() { VirtualFree(pages_, 0, MEM_RELEASE); }

}  // namespace tessaly::tests
