#include "bench/Counter.h"

#include <sys/mman.h>

#include <new>

#include "bench/Folder.h"

namespace tessaly::bench {

Counter::Counter() {
  void* memory = mmap(nullptr, sizeof *number_, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) fail("no shared memory");
  number_ = new (memory) std::atomic<std::size_t>(0);
}

Counter::~Counter() { munmap(number_, sizeof *number_); }

}  // namespace tessaly::bench
