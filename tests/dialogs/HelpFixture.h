#pragma once

#include <string>
#include <string_view>

#include "tessaly/dialogs/CHelp.h"
#include "tessaly/platform/fake/Files.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/Registry.h"
#include "tessaly/settings/CRegistry.h"
#include "tests/contract/HelpWorld.h"

namespace tessaly::tests {

/// Settings in memory, which name the library's folder or do not.
class LibraryFolder {
 public:
  explicit LibraryFolder(char16_t separator = u'\\') : files_(separator) {
    settings_.root(0);
    settings_.rootPath(u"SOFTWARE\\BRAMWELD SYSTEM\\Tessaly");
  }

  void tell(std::u16string_view path) { settings_.SetString(u"Path", path); }
  platform::fake::Registry& registry() { return registry_; }

 private:
  platform::fake::Files files_;
  platform::fake::Registry registry_;
  platform::fake::Locale locale_{1033, u"."};
  platform::Override filesInForce_{files_};
  platform::Override registryInForce_{registry_};
  platform::Override localeInForce_{locale_};
  CRegistry settings_;
};

}  // namespace tessaly::tests
