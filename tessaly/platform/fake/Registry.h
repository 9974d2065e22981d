#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tessaly/base/Export.h"
#include "tessaly/platform/Registry.h"

namespace tessaly::platform::fake {

/// A registry in memory, empty at first, with failures by a test's choice and a record of what was asked.
class TESSALY_API Registry final : public platform::Registry {
 public:
  Registry();
  Registry(const Registry&) = delete;
  Registry& operator=(const Registry&) = delete;
  ~Registry() override;

  /// From now on the calls of this name do nothing and give `result`; with 0 they work again.
  void fail(const std::string& call, Long result) { failures_[call] = result; }

  /// From now on all but the user's part is there for reading only.
  void protectMachine();

  /// The names of the calls in their order, such as "RegOpenKeyExA".
  const std::vector<std::string>& calls() const { return calls_; }

  /// How many keys are open.
  int openKeys() const { return openKeys_; }

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
  struct Stores;

  Long failureOf(const char* call);

  std::unique_ptr<Stores> stores_;
  std::map<std::string, Long> failures_;
  std::vector<std::string> calls_;
  int openKeys_ = 0;
};

}  // namespace tessaly::platform::fake
