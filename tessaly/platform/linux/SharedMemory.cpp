#include "tessaly/platform/SharedMemory.h"

#include <sys/mman.h>

#include <map>

#include "tessaly/base/Text.h"
#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/linux/ForkMutex.h"
#include "tessaly/platform/linux/SharedBlock.h"

namespace tessaly::platform {
namespace {

std::string fileName(const char* name) { return name != nullptr ? toUtf8(fromAnsi(name)) : std::string(); }

/// The handles and views of this process. A block is let go when the last of its own is closed.
class Mappings : public SharedMemory {
 public:
  Mappings() {
    mutex();
    static const End end{*this};
  }

  MappingHandle CreateFileMappingA(PageProtection protection, std::uint32_t sizeHigh, std::uint32_t sizeLow,
                                   const char* name) override {
    if ((protection & ~kCommittedPages) != kReadWritePages || sizeHigh != 0) return 0;
    const std::string file = fileName(name);
    const std::lock_guard lock(mutex());
    return keep({SharedBlock::made(file, sizeLow), true});
  }

  MappingHandle OpenFileMappingA(ViewAccess access, const char* name) override {
    if ((access & (kViewRead | kViewWrite)) == 0) return 0;
    const std::string file = fileName(name);
    const std::lock_guard lock(mutex());
    return keep({SharedBlock::existing(file), (access & kViewWrite) != 0});
  }

  void* MapViewOfFile(MappingHandle mapping, ViewAccess access, std::size_t size) override {
    const std::lock_guard lock(mutex());
    const auto found = mappings_.find(mapping);
    const bool writes = (access & kViewWrite) != 0;
    if (found == mappings_.end() || (access & (kViewRead | kViewWrite)) == 0) return nullptr;
    if (writes && !found->second.mayWrite) return nullptr;
    return show(found->second.block, writes ? PROT_READ | PROT_WRITE : PROT_READ, size);
  }

  bool UnmapViewOfFile(const void* view) override {
    const std::lock_guard lock(mutex());
    const auto found = views_.find(view);
    if (found == views_.end()) return false;
    munmap(found->second.memory, found->second.size);
    views_.erase(found);
    return true;
  }

  bool CloseHandle(MappingHandle mapping) override {
    const std::lock_guard lock(mutex());
    return mappings_.erase(mapping) != 0;
  }

 private:
  using Block = std::shared_ptr<const SharedBlock>;
  struct Mapping {
    Block block;
    bool mayWrite;
  };
  struct View {
    Block block;
    void* memory;
    std::size_t size;
  };

  static std::mutex& mutex() { return forkMutex<Mappings>(); }

  MappingHandle keep(Mapping mapping) {
    if (mapping.block == nullptr) return 0;
    mappings_.emplace(++last_, std::move(mapping));
    return last_;
  }

  /// No size is that of the block.
  void* show(const Block& block, int protection, std::size_t size) {
    if (size == 0) size = block->size();
    void* memory = block->map(size, protection);
    if (memory != nullptr) views_.insert_or_assign(memory, View{block, memory, size});
    return memory;
  }

  /// What a program leaves open at its end: the blocks go as if it had closed them. A view holds its block's
  /// lock as a descriptor does; memory of the program's own takes its place, since what is static may still
  /// write there.
  struct End {
    ~End() {
      const std::lock_guard lock(mutex());
      for (const auto& [memory, view] : all.views_) {
        void* const own = mmap(view.memory, view.size, PROT_READ | PROT_WRITE,
                               MAP_FIXED | MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (own != MAP_FAILED) view.block->letGo();
      }
      for (const auto& [handle, mapping] : all.mappings_) mapping.block->letGo();
    }
    Mappings& all;
  };

  std::map<MappingHandle, Mapping> mappings_;
  std::map<const void*, View> views_;
  MappingHandle last_ = 0;
};

// Made when the program starts, before a thread could while another forks.
[[maybe_unused]] const SharedMemory& memoryAtStart = ownSharedMemory();

}  // namespace

// Never destroyed: what is static may still have a view then.
SharedMemory& ownSharedMemory() {
  static SharedMemory& memory = *new Mappings;
  return memory;
}

}  // namespace tessaly::platform
