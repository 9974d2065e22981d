#pragma once

#include <vector>

#include "tessaly/platform/keys/KeyStore.h"

namespace tessaly::platform {

/// What a call has opened: a key of a store, or a predefined key that has none of its own there.
struct OpenKey {
  KeyStore* store = nullptr;
  KeyStore::Id id = 0;
  RegistryKey predefined = 0;
  RegistryAccess access = 0;

  bool isNone() const { return store == nullptr && predefined == 0; }
};

/// The keys that are open, by the numbers that callers hold.
class OpenKeys {
 public:
  RegistryKey add(const OpenKey& key);

  /// Nothing where the number stands for no open key.
  const OpenKey* find(RegistryKey key) const;

  /// Whether there was one to close.
  bool close(RegistryKey key);

 private:
  struct Slot {
    OpenKey key;
    bool isOpen = false;
  };

  std::vector<Slot> slots_;
  std::vector<std::size_t> free_;
};

}  // namespace tessaly::platform
