#include "bench/SettingsHives.h"

#include <cstdlib>

#include "bench/Folder.h"

namespace tessaly::bench {
namespace {

std::filesystem::path pathOf(const Store& store) {
  return newFolder("hives/tessaly") / (store.root == kFew.root ? "user.hive" : "machine.hive");
}

}  // namespace

void useOwnHives() {
  const std::string folder = newFolder("hives").string();
  for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS"}) setenv(variable, folder.c_str(), 1);
}

std::filesystem::path hiveOf(const Store& store) {
  std::filesystem::path hive = pathOf(store);
  if (!std::filesystem::exists(hive))
    runTool("'" TESSALY_FILL_HIVE "' '" + hive.string() + "' " + std::to_string(store.keys));
  return hive;
}

}  // namespace tessaly::bench
