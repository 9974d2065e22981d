#include "tests/support/GuardedMemory.h"

#include <sys/mman.h>

#include <new>

namespace tessaly::tests {
namespace {

constexpr std::size_t kPage = 4096;

}  // namespace

GuardedMemory::GuardedMemory(std::size_t size)
    : usable_((size + kPage - 1) / kPage * kPage), before_(usable_ - size) {
  void* const pages =
      mmap(nullptr, usable_ + kPage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (pages == MAP_FAILED) throw std::bad_alloc();
  pages_ = static_cast<char*>(pages);
  if (mprotect(pages_ + usable_, kPage, PROT_NONE) != 0) throw std::bad_alloc();
}

GuardedMemory::~GuardedMemory() { munmap(pages_, usable_ + kPage); }

}  // namespace tessaly::tests
