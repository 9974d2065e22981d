#include "tests/support/RegistryWorld.h"

#include "tessaly/base/Text.h"

namespace tessaly::tests {

RegistryWorld::RegistryWorld(Body body) {
  if (body == Body::Fake) localeInForce_.emplace(locale_);
  settings_ = SettingsWorld::make(body);
  registry().RegCreateKeyExA(platform::kCurrentUser, path().c_str(), platform::kKeyAllAccess, key_);
}

RegistryWorld::~RegistryWorld() {
  registry().RegCloseKey(key_);
  // The settings have taken their place last and go first.
  settings_.reset();
}

std::string RegistryWorld::path() const { return toUtf8(settings_->path()); }

}  // namespace tessaly::tests
