#pragma once

#include <new>

#include "tessaly/platform/Registry.h"

namespace tessaly::tests {

/// Hands each call on to another registry; a test overrides the ones that it wants to see or to spoil.
class ForwardingRegistry : public platform::Registry {
 public:
  explicit ForwardingRegistry(platform::Registry& real) : real_(&real) {}

  Long RegOpenKeyExA(platform::RegistryKey key, const char* path, platform::RegistryAccess access,
                     platform::RegistryKey& result) override {
    return real_->RegOpenKeyExA(key, path, access, result);
  }
  Long RegCreateKeyExA(platform::RegistryKey key, const char* path, platform::RegistryAccess access,
                       platform::RegistryKey& result) override {
    return real_->RegCreateKeyExA(key, path, access, result);
  }
  Long RegQueryValueExA(platform::RegistryKey key, const char* name, platform::RegistryType& type,
                        void* buffer, std::uint32_t& size) override {
    return real_->RegQueryValueExA(key, name, type, buffer, size);
  }
  Long RegSetValueExA(platform::RegistryKey key, const char* name, platform::RegistryType type,
                      const void* data, std::uint32_t size) override {
    return real_->RegSetValueExA(key, name, type, data, size);
  }
  Long RegQueryInfoKeyA(platform::RegistryKey key, std::uint32_t& subkeys) override {
    return real_->RegQueryInfoKeyA(key, subkeys);
  }
  Long RegEnumKeyA(platform::RegistryKey key, std::uint32_t index, char* buffer,
                   std::uint32_t size) override {
    return real_->RegEnumKeyA(key, index, buffer, size);
  }
  Long RegDeleteKeyA(platform::RegistryKey key, const char* path) override {
    return real_->RegDeleteKeyA(key, path);
  }
  Long RegCloseKey(platform::RegistryKey key) override { return real_->RegCloseKey(key); }

 private:
  platform::Registry* real_;
};

/// A registry that wants memory in the middle of a call.
class RegistryWithoutMemory final : public ForwardingRegistry {
 public:
  using ForwardingRegistry::ForwardingRegistry;

  Long RegQueryValueExA(platform::RegistryKey, const char*, platform::RegistryType&, void*,
                        std::uint32_t&) override {
    throw std::bad_alloc();
  }
  Long RegSetValueExA(platform::RegistryKey, const char*, platform::RegistryType, const void*,
                      std::uint32_t) override {
    throw std::bad_alloc();
  }
  Long RegQueryInfoKeyA(platform::RegistryKey, std::uint32_t&) override { throw std::bad_alloc(); }
  Long RegEnumKeyA(platform::RegistryKey, std::uint32_t, char*, std::uint32_t) override {
    throw std::bad_alloc();
  }
};

}  // namespace tessaly::tests
