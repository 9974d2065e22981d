#include "tessaly/platform/Registry.h"

#include <windows.h>

#include <cstring>
#include <vector>

#include "tessaly/platform/Bodies.h"

namespace tessaly::platform {
namespace {

HKEY nativeKey(RegistryKey key) { return reinterpret_cast<HKEY>(key); }

class WindowsRegistry final : public Registry {
 public:
  Long RegOpenKeyExA(RegistryKey key, const char* path, RegistryAccess access, RegistryKey& result) override {
    HKEY opened = nullptr;
    const Long failure = ::RegOpenKeyExA(nativeKey(key), path, 0, access, &opened);
    if (failure == ERROR_SUCCESS) result = reinterpret_cast<RegistryKey>(opened);
    return failure;
  }

  Long RegCreateKeyExA(RegistryKey key, const char* path, RegistryAccess access,
                       RegistryKey& result) override {
    HKEY opened = nullptr;
    DWORD disposition = 0;
    // Unlike opening, creating does not take a null path everywhere.
    const char* const given = path != nullptr ? path : "";
    const Long failure = ::RegCreateKeyExA(nativeKey(key), given, 0, nullptr, REG_OPTION_NON_VOLATILE, access,
                                           nullptr, &opened, &disposition);
    if (failure == ERROR_SUCCESS) result = reinterpret_cast<RegistryKey>(opened);
    return failure;
  }

  Long RegQueryValueExA(RegistryKey key, const char* name, RegistryType& type, void* buffer,
                        std::uint32_t& size) override {
    DWORD foundType = 0;
    DWORD foundSize = size;
    // The system may put a NUL behind a text; it gets a buffer of its own, so none comes out.
    thread_local std::vector<BYTE> bytes;
    // It is never empty: without a buffer the system would tell the size alone and call that a success.
    if (buffer != nullptr && bytes.size() <= size) bytes.resize(std::size_t{size} + 1);
    const Long failure = ::RegQueryValueExA(nativeKey(key), name, nullptr, &foundType,
                                            buffer != nullptr ? bytes.data() : nullptr, &foundSize);
    if (failure == ERROR_SUCCESS && buffer != nullptr) std::memcpy(buffer, bytes.data(), foundSize);
    if (failure != ERROR_SUCCESS && failure != ERROR_MORE_DATA) return failure;
    type = foundType;
    size = foundSize;
    return failure;
  }

  Long RegSetValueExA(RegistryKey key, const char* name, RegistryType type, const void* data,
                      std::uint32_t size) override {
    return ::RegSetValueExA(nativeKey(key), name, 0, type, static_cast<const BYTE*>(data), size);
  }

  Long RegQueryInfoKeyA(RegistryKey key, std::uint32_t& subkeys) override {
    DWORD count = 0;
    const Long failure = ::RegQueryInfoKeyA(nativeKey(key), nullptr, nullptr, nullptr, &count, nullptr,
                                            nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    if (failure == ERROR_SUCCESS) subkeys = count;
    return failure;
  }

  Long RegEnumKeyA(RegistryKey key, std::uint32_t index, char* buffer, std::uint32_t size) override {
    return ::RegEnumKeyA(nativeKey(key), index, buffer, size);
  }

  Long RegDeleteKeyA(RegistryKey key, const char* path) override {
    return ::RegDeleteKeyA(nativeKey(key), path);
  }

  Long RegCloseKey(RegistryKey key) override { return ::RegCloseKey(nativeKey(key)); }
};

}  // namespace

Registry& ownRegistry() {
  static WindowsRegistry registry;
  return registry;
}

}  // namespace tessaly::platform
