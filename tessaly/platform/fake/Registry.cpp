#include "tessaly/platform/fake/Registry.h"

#include "tessaly/platform/keys/MemoryKeys.h"
#include "tessaly/platform/keys/StoredRegistry.h"

namespace tessaly::platform::fake {

struct Registry::Stores {
  MemoryKeys machine;
  MemoryKeys user;
  StoredRegistry registry{machine, user, u"S-1-5-21-1-2-3-1000"};
};

Registry::Registry() : stores_(std::make_unique<Stores>()) {}
Registry::~Registry() = default;

void Registry::protectMachine() { stores_->machine.setWritable(false); }

Long Registry::failureOf(const char* call) {
  calls_.emplace_back(call);
  const auto failure = failures_.find(call);
  return failure != failures_.end() ? failure->second : registry_result::kSuccess;
}

Long Registry::RegOpenKeyExA(RegistryKey key, const char* path, RegistryAccess access, RegistryKey& result) {
  Long failure = failureOf(__func__);
  if (failure == 0) failure = stores_->registry.RegOpenKeyExA(key, path, access, result);
  if (failure == 0) ++openKeys_;
  return failure;
}

Long Registry::RegCreateKeyExA(RegistryKey key, const char* path, RegistryAccess access,
                               RegistryKey& result) {
  Long failure = failureOf(__func__);
  if (failure == 0) failure = stores_->registry.RegCreateKeyExA(key, path, access, result);
  if (failure == 0) ++openKeys_;
  return failure;
}

Long Registry::RegQueryValueExA(RegistryKey key, const char* name, RegistryType& type, void* buffer,
                                std::uint32_t& size) {
  const Long failure = failureOf(__func__);
  return failure != 0 ? failure : stores_->registry.RegQueryValueExA(key, name, type, buffer, size);
}

Long Registry::RegSetValueExA(RegistryKey key, const char* name, RegistryType type, const void* data,
                              std::uint32_t size) {
  const Long failure = failureOf(__func__);
  return failure != 0 ? failure : stores_->registry.RegSetValueExA(key, name, type, data, size);
}

Long Registry::RegQueryInfoKeyA(RegistryKey key, std::uint32_t& subkeys) {
  const Long failure = failureOf(__func__);
  return failure != 0 ? failure : stores_->registry.RegQueryInfoKeyA(key, subkeys);
}

Long Registry::RegEnumKeyA(RegistryKey key, std::uint32_t index, char* buffer, std::uint32_t size) {
  const Long failure = failureOf(__func__);
  return failure != 0 ? failure : stores_->registry.RegEnumKeyA(key, index, buffer, size);
}

Long Registry::RegDeleteKeyA(RegistryKey key, const char* path) {
  const Long failure = failureOf(__func__);
  return failure != 0 ? failure : stores_->registry.RegDeleteKeyA(key, path);
}

Long Registry::RegCloseKey(RegistryKey key) {
  const Long failure = failureOf(__func__);
  const Long result = failure != 0 ? failure : stores_->registry.RegCloseKey(key);
  if (result == 0 && key > 0) --openKeys_;
  return result;
}

}  // namespace tessaly::platform::fake
