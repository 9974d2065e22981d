#include "tessaly/platform/fake/SharedMemory.h"

#include <algorithm>

namespace tessaly::platform::fake {

bool SharedMemory::fails(const char* call) {
  calls_.emplace_back(call);
  return failing_.contains(call);
}

std::shared_ptr<SharedMemory::Block> SharedMemory::find(const std::string& name) const {
  const auto block = blocks_.find(name);
  return block != blocks_.end() ? block->second.lock() : nullptr;
}

MappingHandle SharedMemory::add(std::shared_ptr<Block> block) {
  handles_[++last_] = std::move(block);
  return last_;
}

std::string_view SharedMemory::bytes(const std::string& name) const {
  const auto block = find(name);
  return block ? std::string_view(block->data(), block->size()) : std::string_view();
}

void SharedMemory::put(const std::string& name, std::size_t offset, std::string_view bytes) {
  const auto block = find(name);
  if (!block || offset > block->size()) return;
  std::copy_n(bytes.begin(), std::min(bytes.size(), block->size() - offset),
              block->begin() + static_cast<std::ptrdiff_t>(offset));
}

MappingHandle SharedMemory::CreateFileMappingA(PageProtection protection, std::uint32_t sizeHigh,
                                               std::uint32_t sizeLow, const char* name) {
  const bool isKnown = (protection & ~kCommittedPages) == kReadWritePages && sizeHigh == 0 && sizeLow != 0;
  if (fails(__func__) || !isKnown) return 0;
  auto block = find(name);
  if (!block) {
    block = std::make_shared<Block>(sizeLow);
    blocks_[name] = block;
  }
  return add(std::move(block));
}

MappingHandle SharedMemory::OpenFileMappingA(ViewAccess /*access*/, const char* name) {
  if (fails(__func__)) return 0;
  auto block = find(name);
  return block ? add(std::move(block)) : 0;
}

void* SharedMemory::MapViewOfFile(MappingHandle mapping, ViewAccess /*access*/, std::size_t size) {
  if (fails(__func__)) return nullptr;
  const auto handle = handles_.find(mapping);
  if (handle == handles_.end() || size > handle->second->size()) return nullptr;
  views_.push_back(handle->second);
  return handle->second->data();
}

bool SharedMemory::UnmapViewOfFile(const void* view) {
  if (fails(__func__)) return false;
  const auto shown =
      std::find_if(views_.begin(), views_.end(), [=](const auto& block) { return block->data() == view; });
  if (shown == views_.end()) return false;
  views_.erase(shown);
  return true;
}

bool SharedMemory::CloseHandle(MappingHandle mapping) {
  return !fails(__func__) && handles_.erase(mapping) != 0;
}

}  // namespace tessaly::platform::fake
