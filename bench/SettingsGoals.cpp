#include "bench/SettingsGoals.h"

#include "bench/Contestant.h"

namespace tessaly::bench {
namespace {

constexpr const char* kLimit = "limit: pread of 4 bytes";
constexpr double kOverPread = 4;
constexpr double kOverSqliteWrite = 1.2;
constexpr double kOverQSettingsWrite = 0.2;

/// What a search in an ordered set of 200,000 takes, in steps of one in 200.
constexpr double kLogarithm = 2.3;

std::string row(const std::string& group, const char* name) { return group + '/' + name; }

/// The peers that see what other processes write. LMDB, which maps its file, has no system call to pay for.
std::vector<std::string> seeingPeers(const std::string& group) {
  return {row(group, "SQLite"), row(group, "QSettings, sync and value"),
          row(group, "QSettings, fresh object"), row(group, "GSettings keyfile, main loop run")};
}

void addRead(std::vector<Goal>& goals, const std::string& group) {
  goals.push_back({group + ": over pread", row(group, "Tessaly"), {row(group, kLimit)}, kOverPread});
  goals.push_back({group + ": over best peer", row(group, "Tessaly"), seeingPeers(group), 1});
}

void addWrite(std::vector<Goal>& goals, const Store& store) {
  const std::string writes = group("durable write", store);
  goals.push_back(
      {writes + ": over SQLite", row(writes, "Tessaly"), {row(writes, "SQLite")}, kOverSqliteWrite});
  goals.push_back({writes + ": over QSettings",
                   row(writes, "Tessaly"),
                   {row(writes, "QSettings, sync and value")},
                   kOverQSettingsWrite});
}

void addGrowth(std::vector<Goal>& goals, const std::string& what) {
  goals.push_back({what + ": many over few",
                   row(group(what, kMany), "Tessaly"),
                   {row(group(what, kFew), "Tessaly")},
                   kLogarithm});
}

}  // namespace

std::vector<Goal> settingsGoals() {
  std::vector<Goal> goals;
  for (const Store* store : {&kFew, &kMany}) {
    for (const char* what : {"number", "text"}) {
      for (const bool besideWriter : {false, true}) addRead(goals, group(what, *store, besideWriter));
    }
    const std::string apart = group("number, reads apart", *store);
    goals.push_back({apart + ": over pread", row(apart, "Tessaly"), {row(apart, kLimit)}, kOverPread});
    addRead(goals, group("missing value", *store));
    addWrite(goals, *store);
  }
  for (const char* what : {"number", "number, reads apart", "text", "missing value", "durable write"})
    addGrowth(goals, what);
  return goals;
}

}  // namespace tessaly::bench
