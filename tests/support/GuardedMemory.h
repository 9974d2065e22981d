#pragma once

#include <cstddef>

namespace tessaly::tests {

/// Memory of so many bytes, right behind which a page begins that nobody may touch.
class GuardedMemory {
 public:
  explicit GuardedMemory(std::size_t size);
  GuardedMemory(const GuardedMemory&) = delete;
  GuardedMemory& operator=(const GuardedMemory&) = delete;
  ~GuardedMemory();

  char* data() const { return pages_ + before_; }

 private:
  std::size_t usable_;
  std::size_t before_;
  char* pages_;
};

}  // namespace tessaly::tests
