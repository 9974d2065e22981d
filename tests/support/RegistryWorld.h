#pragma once

#include <memory>
#include <optional>
#include <string>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tests/support/SettingsWorld.h"

namespace tessaly::tests {

/// An empty key under the current user, open for all, and the body that has it, in force as long as the world
/// lives. What a test puts into the key goes with the world.
class RegistryWorld {
 public:
  explicit RegistryWorld(Body body);
  RegistryWorld(const RegistryWorld&) = delete;
  RegistryWorld& operator=(const RegistryWorld&) = delete;
  ~RegistryWorld();

  static platform::Registry& registry() { return *platform::core().registry; }

  platform::RegistryKey key() const { return key_; }

  /// Where the key stands below `kCurrentUser`.
  std::string path() const;

 private:
  platform::fake::Locale locale_{1033, u"."};
  std::optional<platform::Override> localeInForce_;
  std::unique_ptr<SettingsWorld> settings_;
  platform::RegistryKey key_ = 0;
};

}  // namespace tessaly::tests
