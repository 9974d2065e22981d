#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "tessaly/platform/Registry.h"

namespace tessaly::platform {

/// A key of the registry that is in force when it is opened, closed with this object. Where it could not be
/// opened there is nothing to read and what is written is dropped. The value name "*" is the key's unnamed
/// value.
class OpenedKey {
 public:
  enum class Purpose { Reading, Writing };

  /// For reading, opens an existing key; for writing, makes it and its parents where they are missing.
  OpenedKey(RegistryKey root, std::u16string_view path, Purpose purpose);
  OpenedKey(const OpenedKey&) = delete;
  OpenedKey& operator=(const OpenedKey&) = delete;
  ~OpenedKey();

  bool isOpen() const { return key_ != 0; }

  /// Reads a value into a buffer and gives its size; nothing where it is missing or larger than the buffer.
  std::optional<std::uint32_t> read(std::u16string_view name, void* buffer, std::uint32_t size) const;

  /// A value of up to 4 bytes as a number, whatever its type.
  std::optional<Long> readLong(std::u16string_view name) const;

  void write(std::u16string_view name, RegistryType type, const void* data, std::uint32_t size);
  void writeLong(std::u16string_view name, Long value);

  /// How many direct subkeys the key has.
  std::optional<Long> subkeys() const;

  /// Puts the name of a subkey, by its place from 0, and a NUL into a buffer; false where there is none.
  bool subkeyName(std::uint32_t place, char* buffer, std::uint32_t size) const;

 private:
  Registry* registry_;
  RegistryKey key_ = 0;
};

}  // namespace tessaly::platform
