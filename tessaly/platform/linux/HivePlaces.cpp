// Where hives stand, as the base directory specification has it: relative paths in the variables are passed
// over.

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "tessaly/base/Text.h"
#include "tessaly/platform/keys/HiveFile.h"

namespace tessaly::platform {
namespace {

using std::filesystem::path;

path absolute(const std::string& text) { return text.starts_with('/') ? path(text) : path(); }

/// Of a program that runs with another's rights the environment is not believed.
path fromEnvironment(const char* name) {
  const char* value = secure_getenv(name);
  return value != nullptr ? absolute(value) : path();
}

path homeFolder() {
  if (path home = fromEnvironment("HOME"); !home.empty()) return home;
  const passwd* user = getpwuid(geteuid());
  return user != nullptr ? absolute(user->pw_dir) : path();
}

path firstOf(const char* folders) {
  for (std::string rest = folders != nullptr ? folders : ""; !rest.empty();) {
    const std::size_t end = std::min(rest.find(':'), rest.size());
    if (path folder = absolute(rest.substr(0, end)); !folder.empty()) return folder;
    rest.erase(0, end + 1);
  }
  return {};
}

}  // namespace

path userHivePath() {
  path folder = fromEnvironment("XDG_CONFIG_HOME");
  if (folder.empty()) folder = homeFolder() / ".config";
  return folder / "tessaly" / "user.hive";
}

path machineHivePath() {
  path folder = firstOf(secure_getenv("XDG_CONFIG_DIRS"));
  if (folder.empty()) folder = "/etc/xdg";
  return folder / "tessaly" / "machine.hive";
}

String registryUserName() { return fromUtf8("S-1-22-1-" + std::to_string(geteuid())); }

}  // namespace tessaly::platform
