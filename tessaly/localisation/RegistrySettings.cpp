// CResources keeps three settings in the registry: where the machine has the language files, and which
// language the user wants, to be read and to be written.

#include <array>

#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/BufferText.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/OpenedKey.h"
#include "tessaly/platform/RootSelector.h"

namespace tessaly {

using platform::OpenedKey;

namespace {

constexpr std::uint32_t kSettingBuffer = 1000;

/// As many characters as the value has bytes, unless it is cut before.
String paddedText(std::string_view bytes) {
  platform::BufferText stored(bytes);
  if (!stored.isCut) stored.text.resize(bytes.size(), u' ');
  return std::move(stored.text);
}

}  // namespace

void CResources::SetLangToRegistries(std::u16string_view path, std::u16string_view name, Long id) {
  registryRoot_ = static_cast<Long>(platform::kCurrentUser);
  SetRegistryPath(path);
  WriteRegistryLong(name, id);
}

void CResources::SetResourcesPathFromRegistry(std::u16string_view path, std::u16string_view name) {
  registryRoot_ = static_cast<Long>(platform::kLocalMachine);
  SetRegistryPath(path);
  resourcesPath(ReadRegistryString(name, {}));
}

void CResources::SetLangFromRegistries(std::u16string_view path, std::u16string_view name) {
  registryRoot_ = static_cast<Long>(platform::kCurrentUser);
  SetRegistryPath(path);
  lang(ReadRegistryLong(name, 0));
}

void CResources::SetRegistryPath(std::u16string_view path) { registryPath_ = path; }

String CResources::ReadRegistryString(std::u16string_view name, std::u16string_view defaultText) const {
  std::array<char, kSettingBuffer> buffer;
  const OpenedKey key(registryRoot_, registryPath_, OpenedKey::Purpose::Reading);
  const auto size = key.read(name, buffer.data(), kSettingBuffer);
  return size ? paddedText({buffer.data(), *size}) : String(defaultText);
}

Long CResources::ReadRegistryLong(std::u16string_view name, Long defaultValue) const {
  const OpenedKey key(registryRoot_, registryPath_, OpenedKey::Purpose::Reading);
  return key.readLong(name).value_or(defaultValue);
}

void CResources::WriteRegistryLong(std::u16string_view name, Long value) {
  OpenedKey(registryRoot_, registryPath_, OpenedKey::Purpose::Writing).writeLong(name, value);
}

void CResources::SelectRegistryRoot(Long selector) {
  if (const Long root = platform::rootOf(selector); root != 0) registryRoot_ = root;
}

Boolean CResources::FileExists(std::u16string_view path) const { return platform::core().files->opens(path); }

}  // namespace tessaly
