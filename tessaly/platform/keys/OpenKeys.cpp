#include "tessaly/platform/keys/OpenKeys.h"

namespace tessaly::platform {
namespace {

// Numbers look like a platform's handles: never 0, never predefined, apart by 4.
constexpr RegistryKey kStep = 4;

std::size_t slotOf(RegistryKey key) {
  const bool isOurs = key > 0 && key % kStep == 0;
  return isOurs ? static_cast<std::size_t>(key / kStep - 1) : static_cast<std::size_t>(-1);
}

}  // namespace

RegistryKey OpenKeys::add(const OpenKey& key) {
  if (free_.empty()) {
    slots_.emplace_back();
    free_.push_back(slots_.size() - 1);
  }
  const std::size_t slot = free_.back();
  free_.pop_back();
  slots_[slot] = {key, true};
  return static_cast<RegistryKey>(slot + 1) * kStep;
}

const OpenKey* OpenKeys::find(RegistryKey key) const {
  const std::size_t slot = slotOf(key);
  return slot < slots_.size() && slots_[slot].isOpen ? &slots_[slot].key : nullptr;
}

bool OpenKeys::close(RegistryKey key) {
  if (find(key) == nullptr) return false;
  const std::size_t slot = slotOf(key);
  slots_[slot].isOpen = false;
  free_.push_back(slot);
  return true;
}

}  // namespace tessaly::platform
