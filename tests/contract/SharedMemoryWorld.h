#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/SharedMemory.h"
#include "tests/support/OwnRuntime.h"
#include "tests/support/World.h"

namespace tessaly::tests {

inline constexpr std::uint32_t kSize = 5000;

/// The body of the area SharedMemory that a contract runs on, in force as long as the world lives.
class SharedMemoryWorld {
 public:
  explicit SharedMemoryWorld(Body body) {
    useOwnRuntime();
    if (body == Body::Fake) inForce_.emplace(fake_);
  }

  /// Of this test alone, though others run beside it.
  std::string name(const std::string& ending = "") const { return name_ + ending; }

 private:
  platform::fake::SharedMemory fake_;
  std::optional<platform::Override> inForce_;
  std::string name_ = "TessalyTests" + std::to_string(std::random_device()());
};

inline platform::SharedMemory& memory() { return *platform::core().sharedMemory; }

inline platform::MappingHandle make(const std::string& name, std::uint32_t size = kSize) {
  return memory().CreateFileMappingA(platform::kReadWritePages | platform::kCommittedPages, 0, size,
                                     name.c_str());
}

inline platform::MappingHandle open(const std::string& name) {
  return memory().OpenFileMappingA(platform::kViewRead | platform::kViewWrite, name.c_str());
}

inline char* show(platform::MappingHandle mapping, std::size_t size = kSize) {
  return static_cast<char*>(
      memory().MapViewOfFile(mapping, platform::kViewRead | platform::kViewWrite, size));
}

inline bool isThere(const std::string& name) {
  const platform::MappingHandle mapping = open(name);
  if (mapping != 0) memory().CloseHandle(mapping);
  return mapping != 0;
}

inline bool isZero(const char* view, std::size_t size = kSize) {
  return std::all_of(view, view + size, [](char byte) { return byte == 0; });
}

/// Puts a text with its NUL in front.
inline void put(char* view, std::string_view text) { *std::copy(text.begin(), text.end(), view) = '\0'; }

/// A new block and its view, both closed at the end.
class Shown {
 public:
  explicit Shown(const std::string& name, std::uint32_t size = kSize)
      : mapping_(make(name, size)), view_(show(mapping_, size)) {}
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;
  ~Shown() {
    memory().UnmapViewOfFile(view_);
    memory().CloseHandle(mapping_);
  }

  platform::MappingHandle mapping() const { return mapping_; }
  char* view() const { return view_; }

 private:
  platform::MappingHandle mapping_;
  char* view_;
};

}  // namespace tessaly::tests
