#include "tests/support/SettingsWorld.h"

#include <array>
#include <random>

#include "tessaly/base/Text.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Registry.h"
#include "tests/support/OwnSettings.h"

namespace tessaly::tests {
namespace {

using platform::RegistryKey;

platform::Registry& registry() { return *platform::core().registry; }

/// The tests' names are ASCII where they come through here, or in the code page already.
std::string bytesOf(std::u16string_view path) {
  platform::Locale& locale = *platform::core().locale;
  return locale.WideCharToMultiByte(locale.GetACP(), path);
}

class Opened {
 public:
  Opened(RegistryKey root, std::u16string_view path, bool make) {
    const std::string bytes = bytesOf(path);
    const Long failure = make ? registry().RegCreateKeyExA(root, bytes.c_str(), platform::kKeyAllAccess, key_)
                              : registry().RegOpenKeyExA(root, bytes.c_str(), platform::kKeyRead, key_);
    isOpen_ = failure == 0;
  }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;
  ~Opened() {
    if (isOpen_) registry().RegCloseKey(key_);
  }

  bool isOpen() const { return isOpen_; }
  RegistryKey key() const { return key_; }

 private:
  RegistryKey key_ = 0;
  bool isOpen_ = false;
};

/// Goes by one name at a time, since a platform may bound whole paths. A name that can't be reached ends it.
void removeBelow(RegistryKey key) {
  std::array<char, 1000> name{};
  while (registry().RegEnumKeyA(key, 0, name.data(), static_cast<std::uint32_t>(name.size())) == 0) {
    RegistryKey inner = 0;
    if (registry().RegOpenKeyExA(key, name.data(), platform::kKeyRead, inner) != 0) return;
    removeBelow(inner);
    registry().RegCloseKey(inner);
    if (registry().RegDeleteKeyA(key, name.data()) != 0) return;
  }
}

class OwnSettingsWorld final : public SettingsWorld {
 public:
  OwnSettingsWorld() { useOwnSettings(); }
  ~OwnSettingsWorld() override {
    for (const RegistryKey root : {platform::kCurrentUser, platform::kLocalMachine}) {
      removeKey(root, toUtf8(path()));
      registry().RegDeleteKeyA(root, "Software\\Tessaly Tests");
    }
  }
};

class FakeSettingsWorld final : public SettingsWorld {
 private:
  platform::fake::Registry registry_;
  platform::Override inForce_{registry_};
};

}  // namespace

SettingsWorld::SettingsWorld()
    : path_(u"Software\\Tessaly Tests\\" + fromUtf8(std::to_string(std::random_device()()))) {}

std::unique_ptr<SettingsWorld> SettingsWorld::make(Body body) {
  if (body == Body::Fake) return std::make_unique<FakeSettingsWorld>();
  return std::make_unique<OwnSettingsWorld>();
}

bool putValue(RegistryKey root, std::u16string_view path, const char* name, const StoredValue& value) {
  const Opened key(root, path, true);
  // The byte behind the value's last must not be a NUL.
  const std::string bytes = value.bytes + '.';
  return key.isOpen() && registry().RegSetValueExA(key.key(), name, value.type, bytes.data(),
                                                   static_cast<std::uint32_t>(value.bytes.size())) == 0;
}

std::optional<StoredValue> valueAt(RegistryKey root, std::u16string_view path, const char* name) {
  const Opened key(root, path, false);
  std::string bytes(100'000, '\0');
  auto size = static_cast<std::uint32_t>(bytes.size());
  StoredValue value;
  const bool found =
      key.isOpen() && registry().RegQueryValueExA(key.key(), name, value.type, bytes.data(), size) == 0;
  if (!found) return std::nullopt;
  value.bytes = bytes.substr(0, size);
  return value;
}

bool putKey(RegistryKey root, std::u16string_view path) { return Opened(root, path, true).isOpen(); }
bool hasKey(RegistryKey root, std::u16string_view path) { return Opened(root, path, false).isOpen(); }

void removeKey(RegistryKey root, const std::string& path) {
  RegistryKey opened = 0;
  if (registry().RegOpenKeyExA(root, path.c_str(), platform::kKeyRead, opened) != 0) return;
  removeBelow(opened);
  registry().RegCloseKey(opened);
  registry().RegDeleteKeyA(root, path.c_str());
}

}  // namespace tessaly::tests
