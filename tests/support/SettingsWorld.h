#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "tessaly/platform/Registry.h"
#include "tests/support/World.h"

namespace tessaly::tests {

/// What stands in the registry under a name, as it stands there.
struct StoredValue {
  platform::RegistryType type = 0;
  std::string bytes;
  bool operator==(const StoredValue&) const = default;
};

/// A registry in force as long as the world lives, and a key in it that belongs to the test. What the test
/// puts under that key, in the user's or in the machine's part, goes with the world.
class SettingsWorld {
 public:
  static std::unique_ptr<SettingsWorld> make(Body body);

  SettingsWorld();
  SettingsWorld(const SettingsWorld&) = delete;
  SettingsWorld& operator=(const SettingsWorld&) = delete;
  virtual ~SettingsWorld() = default;

  /// The test's key below either predefined key; it is not there at first.
  const String& path() const { return path_; }

 private:
  String path_;
};

/// The calls of the registry in force, with keys made where they are missing. A null name is the unnamed
/// value; what goes wrong is told by the results.
bool putValue(platform::RegistryKey root, std::u16string_view path, const char* name,
              const StoredValue& value);
std::optional<StoredValue> valueAt(platform::RegistryKey root, std::u16string_view path, const char* name);
bool putKey(platform::RegistryKey root, std::u16string_view path);
bool hasKey(platform::RegistryKey root, std::u16string_view path);

/// Deletes a key with all that lies under it.
void removeKey(platform::RegistryKey root, const std::string& path);

}  // namespace tessaly::tests
