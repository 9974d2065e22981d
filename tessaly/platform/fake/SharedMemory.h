#pragma once

#include <list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/base/Export.h"
#include "tessaly/platform/SharedMemory.h"

namespace tessaly::platform::fake {

/// Blocks in this process's own memory, each of exactly its size, with failures by a test's choice and a
/// record of what was asked. Not for several threads at once.
class TESSALY_API SharedMemory final : public platform::SharedMemory {
 public:
  /// From now on the calls of this name do nothing and fail.
  void fail(const std::string& call) { failing_.insert(call); }

  /// The names of the calls in their order, such as "CreateFileMappingA".
  const std::vector<std::string>& calls() const { return calls_; }

  /// The bytes of a block, to be read and changed as another process would; empty where there is none.
  std::string_view bytes(const std::string& name) const;
  void put(const std::string& name, std::size_t offset, std::string_view bytes);

  /// How many handles and views are open.
  std::size_t openHandles() const { return handles_.size(); }
  std::size_t views() const { return views_.size(); }

  MappingHandle CreateFileMappingA(PageProtection protection, std::uint32_t sizeHigh, std::uint32_t sizeLow,
                                   const char* name) override;
  MappingHandle OpenFileMappingA(ViewAccess access, const char* name) override;
  void* MapViewOfFile(MappingHandle mapping, ViewAccess access, std::size_t size) override;
  bool UnmapViewOfFile(const void* view) override;
  bool CloseHandle(MappingHandle mapping) override;

 private:
  using Block = std::vector<char>;

  bool fails(const char* call);
  std::shared_ptr<Block> find(const std::string& name) const;
  MappingHandle add(std::shared_ptr<Block> block);

  std::map<std::string, std::weak_ptr<Block>> blocks_;
  std::map<MappingHandle, std::shared_ptr<Block>> handles_;
  std::list<std::shared_ptr<Block>> views_;
  std::set<std::string> failing_;
  std::vector<std::string> calls_;
  MappingHandle last_ = 0;
};

}  // namespace tessaly::platform::fake
