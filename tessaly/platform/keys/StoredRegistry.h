#pragma once

#include <mutex>

#include "tessaly/platform/Registry.h"
#include "tessaly/platform/keys/OpenKeys.h"
#include "tessaly/platform/keys/PredefinedKeys.h"
#include "tessaly/platform/keys/ReadCopy.h"

namespace tessaly::platform {

/// The registry's calls over two key stores, the machine's and the user's, which must outlive it. The three
/// other predefined keys show parts of these two: `kClassesRoot` and `kCurrentConfig` a key of the machine's,
/// and `kUsers` the user's store under the user's name.
class StoredRegistry final : public Registry {
 public:
  StoredRegistry(KeyStore& machine, KeyStore& user, String userName);

  /// Held by every call; for what must not happen during one.
  std::mutex& mutex() { return mutex_; }

  Long RegOpenKeyExA(RegistryKey key, const char* path, RegistryAccess access, RegistryKey& result) override;
  Long RegCreateKeyExA(RegistryKey key, const char* path, RegistryAccess access,
                       RegistryKey& result) override;
  Long RegQueryValueExA(RegistryKey key, const char* name, RegistryType& type, void* buffer,
                        std::uint32_t& size) override;
  Long RegSetValueExA(RegistryKey key, const char* name, RegistryType type, const void* data,
                      std::uint32_t size) override;
  Long RegQueryInfoKeyA(RegistryKey key, std::uint32_t& subkeys) override;
  Long RegEnumKeyA(RegistryKey key, std::uint32_t index, char* buffer, std::uint32_t size) override;
  Long RegDeleteKeyA(RegistryKey key, const char* path) override;
  Long RegCloseKey(RegistryKey key) override;

 private:
  OpenKey keyOf(RegistryKey key) const;
  KeyPlace place(const OpenKey& base, std::vector<std::u16string_view> names) const;
  ReadCopy::Key belowPredefined(RegistryKey root, std::string_view path);
  Long find(const OpenKey& base, std::string_view path, OpenKey& found);
  Long make(const OpenKey& base, std::string_view path, OpenKey& found);
  Long open(const OpenKey& found, RegistryAccess access, RegistryKey& result);
  Long held(RegistryKey key, RegistryAccess needed, OpenKey& found);
  Long subkeyNames(RegistryKey key, RegistryAccess needed, const std::vector<String>*& names);

  std::mutex mutex_;
  PredefinedKeys roots_;
  OpenKeys open_;
  ReadCopy copy_;
  const std::vector<String> users_;
  const std::vector<String> none_;
};

}  // namespace tessaly::platform
