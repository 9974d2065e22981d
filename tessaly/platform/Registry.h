#pragma once

#include <cstdint>

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// A key that a call has opened, or one of the predefined ones; 0 is none.
using RegistryKey = std::intptr_t;

inline constexpr RegistryKey kClassesRoot = static_cast<Long>(0x80000000);
inline constexpr RegistryKey kCurrentUser = static_cast<Long>(0x80000001);
inline constexpr RegistryKey kLocalMachine = static_cast<Long>(0x80000002);
inline constexpr RegistryKey kUsers = static_cast<Long>(0x80000003);
inline constexpr RegistryKey kCurrentConfig = static_cast<Long>(0x80000005);

/// What a key is opened for, in bits.
using RegistryAccess = std::uint32_t;
inline constexpr RegistryAccess kQueryValue = 0x1;
inline constexpr RegistryAccess kSetValue = 0x2;
inline constexpr RegistryAccess kEnumerateSubKeys = 0x8;
inline constexpr RegistryAccess kKeyRead = 0x20019;
inline constexpr RegistryAccess kKeyAllAccess = 0xF003F;

/// The types of values that the calls treat in their own way; all others are bytes.
using RegistryType = std::uint32_t;
inline constexpr RegistryType kNoType = 0;
inline constexpr RegistryType kText = 1;
inline constexpr RegistryType kExpandableText = 2;
inline constexpr RegistryType kBinary = 3;
inline constexpr RegistryType kNumber = 4;
inline constexpr RegistryType kTexts = 7;

/// The results of the calls, by the platform's own numbers.
namespace registry_result {
inline constexpr Long kSuccess = 0;
inline constexpr Long kNotFound = 2;
inline constexpr Long kAccessDenied = 5;
inline constexpr Long kInvalidHandle = 6;
inline constexpr Long kInvalidParameter = 87;
inline constexpr Long kDiskFull = 112;
inline constexpr Long kBadPathname = 161;
inline constexpr Long kBusy = 170;
inline constexpr Long kMoreData = 234;
inline constexpr Long kNoMoreItems = 259;
inline constexpr Long kNotAHive = 1009;
inline constexpr Long kCorrupt = 1015;
inline constexpr Long kIoFailed = 1016;
inline constexpr Long kKeyDeleted = 1018;
inline constexpr Long kNoResources = 1450;
}  // namespace registry_result

/// A tree of keys with named values under five predefined keys, by the platform's own calls. Paths and names
/// are 8-bit text in the system's code page, end with a NUL and are found in any case; levels of a path are
/// divided by backslashes, of which one may stand at its end and none at its beginning. Text values become
/// 8-bit text here. Each call gives a number of `registry_result`; none throws but for want of memory; any
/// thread may call. Whoever opens a key closes it, and may do so after it was deleted: until then, all that
/// is done with it gives `kKeyDeleted`.
struct Registry {
  virtual ~Registry() = default;

  /// Opens an existing key. An empty path is the key itself.
  virtual Long RegOpenKeyExA(RegistryKey key, const char* path, RegistryAccess access,
                             RegistryKey& result) = 0;

  /// Opens a key, creating it and its parents where they are missing.
  virtual Long RegCreateKeyExA(RegistryKey key, const char* path, RegistryAccess access,
                               RegistryKey& result) = 0;

  /// Reads a value; a null or an empty name is the key's unnamed one. `size` is the buffer's going in and the
  /// value's coming out. Without a buffer it tells the size alone. A value larger than the buffer is
  /// `kMoreData`. No byte behind the value's size is touched.
  virtual Long RegQueryValueExA(RegistryKey key, const char* name, RegistryType& type, void* buffer,
                                std::uint32_t& size) = 0;

  /// Writes a value of the first `size` bytes. The platform takes a NUL that stands right behind a text's
  /// last byte with the text, so give it another byte there.
  virtual Long RegSetValueExA(RegistryKey key, const char* name, RegistryType type, const void* data,
                              std::uint32_t size) = 0;

  /// The number of direct subkeys.
  virtual Long RegQueryInfoKeyA(RegistryKey key, std::uint32_t& subkeys) = 0;

  /// The name of a subkey by its place from 0, with a NUL behind it, in the order of upper-cased names.
  virtual Long RegEnumKeyA(RegistryKey key, std::uint32_t index, char* buffer, std::uint32_t size) = 0;

  /// Deletes a key that has no subkeys; `kAccessDenied` where it has.
  virtual Long RegDeleteKeyA(RegistryKey key, const char* path) = 0;

  virtual Long RegCloseKey(RegistryKey key) = 0;
};

}  // namespace tessaly::platform
