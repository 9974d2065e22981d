#include "tessaly/platform/OpenedKey.h"

#include <string>

#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/Core.h"

namespace tessaly::platform {
namespace {

using registry_result::kSuccess;

class ValueName {
 public:
  explicit ValueName(std::u16string_view name) : isUnnamed_(name == u"*"), text_(toAnsi(name)) {}
  const char* get() const { return isUnnamed_ ? nullptr : text_.c_str(); }

 private:
  bool isUnnamed_;
  std::string text_;
};

}  // namespace

OpenedKey::OpenedKey(RegistryKey root, std::u16string_view path, Purpose purpose)
    : registry_(core().registry) {
  const std::string ansi = toAnsi(path);
  RegistryKey opened = 0;
  const Long failure = purpose == Purpose::Reading
                           ? registry_->RegOpenKeyExA(root, ansi.c_str(), kKeyRead, opened)
                           : registry_->RegCreateKeyExA(root, ansi.c_str(), kKeyAllAccess, opened);
  if (failure == kSuccess) key_ = opened;
}

OpenedKey::~OpenedKey() {
  if (isOpen()) registry_->RegCloseKey(key_);
}

std::optional<std::uint32_t> OpenedKey::read(std::u16string_view name, void* buffer,
                                             std::uint32_t size) const {
  RegistryType type = kNoType;
  const bool found =
      isOpen() && registry_->RegQueryValueExA(key_, ValueName(name).get(), type, buffer, size) == kSuccess;
  return found ? std::optional(size) : std::nullopt;
}

std::optional<Long> OpenedKey::readLong(std::u16string_view name) const {
  Long value = 0;
  return read(name, &value, sizeof value) ? std::optional(value) : std::nullopt;
}

void OpenedKey::write(std::u16string_view name, RegistryType type, const void* data, std::uint32_t size) {
  if (isOpen()) registry_->RegSetValueExA(key_, ValueName(name).get(), type, data, size);
}

void OpenedKey::writeLong(std::u16string_view name, Long value) {
  write(name, kNumber, &value, sizeof value);
}

std::optional<Long> OpenedKey::subkeys() const {
  std::uint32_t count = 0;
  const bool told = isOpen() && registry_->RegQueryInfoKeyA(key_, count) == kSuccess;
  return told ? std::optional(static_cast<Long>(count)) : std::nullopt;
}

bool OpenedKey::subkeyName(std::uint32_t place, char* buffer, std::uint32_t size) const {
  return isOpen() && registry_->RegEnumKeyA(key_, place, buffer, size) == kSuccess;
}

}  // namespace tessaly::platform
