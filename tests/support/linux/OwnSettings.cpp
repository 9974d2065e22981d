#include "tests/support/OwnSettings.h"

#include <cstdlib>

#include "tests/support/TemporaryFolder.h"

namespace tessaly::tests {
namespace {

struct OwnFolders {
  OwnFolders() {
    setenv("XDG_CONFIG_HOME", (folder.path() / "user").c_str(), 1);
    setenv("XDG_CONFIG_DIRS", (folder.path() / "machine").c_str(), 1);
  }

  TemporaryFolder folder;
};

// Made before any test runs: the library looks where the settings are when it is first used, for whatever.
const OwnFolders folders;

}  // namespace

void useOwnSettings() {}

}  // namespace tessaly::tests
