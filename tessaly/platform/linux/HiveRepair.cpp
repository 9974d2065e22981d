#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>

#include "tessaly/platform/linux/Hive.h"
#include "tessaly/platform/linux/HiveCopy.h"
#include "tessaly/platform/linux/HiveFolder.h"
#include "tessaly/platform/linux/HiveLock.h"
#include "tessaly/platform/linux/HiveSalvage.h"
#include "tessaly/platform/linux/HiveSoundness.h"

namespace tessaly::platform {
namespace {

using namespace registry_result;
using Path = std::filesystem::path;

constexpr std::size_t kMostFaults = 20;

Path withEnding(Path name, std::string_view ending) { return name += ending; }

std::string bytesOf(const Path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// The hive's bytes without what an interrupted write has left. Where the journal can't be played back the
/// bytes come as they are.
Long readWhole(HiveFile& file, std::string& bytes) {
  if (const Long failure = file.open(); failure != kSuccess) return failure;
  const PrivateFolder folder;
  const Path target = folder.path() / "copy.hive";
  if (folder.path().empty() || !copyHive(*file.file(), file.path(), target)) return kIoFailed;
  sqlite::Database copy;
  if (sqlite::open(target, SQLITE_OPEN_READWRITE, copy) == SQLITE_OK) {
    sqlite::run(copy.get(), "PRAGMA schema_version");
  }
  copy.reset();
  bytes = bytesOf(target);
  return kSuccess;
}

Long insertAll(const SalvagedRows& rows, sqlite3* database) {
  HiveRows into(database);
  Long result = sqlite::resultOf(into.beginWriting());
  if (result == kSuccess) result = sqlite::resultOf(hive::makeTables(database));
  for (const hive::KeyRow& row : rows.keys) {
    if (result == kSuccess) result = into.insert(row);
  }
  for (const hive::ValueRow& row : rows.values) {
    if (result == kSuccess) result = into.insert(row);
  }
  return result == kSuccess ? into.commit() : result;
}

/// A new hive of the rows, with the owner and mode of the one whose place it will take.
Long writeNew(const SalvagedRows& rows, const Path& target, const struct stat& before) {
  std::error_code ignored;
  std::filesystem::remove(target, ignored);
  std::filesystem::remove(withEnding(target, "-journal"), ignored);
  if (const Long failure = makeFile(target, before.st_mode & 07777U); failure != kSuccess) return failure;
  if (chown(target.c_str(), before.st_uid, before.st_gid) != 0 && before.st_uid != geteuid())
    return kAccessDenied;
  sqlite::Database database;
  Long result = sqlite::resultOf(sqlite::open(target, SQLITE_OPEN_READWRITE, database));
  if (result == kSuccess) result = insertAll(rows, database.get());
  return result;
}

Path freePath(const Path& wanted) {
  Path free = wanted;
  for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(free)); ++number) {
    free = withEnding(withEnding(wanted, "-"), std::to_string(number));
  }
  return free;
}

/// The damaged file keeps all its bytes under another name. Its journal goes first: the new hive must not be
/// taken back to what stands in there.
Long exchange(const Path& hive, const Path& made, const Path& damaged) {
  const Path journal = withEnding(hive, "-journal");
  if (link(hive.c_str(), damaged.c_str()) != 0) return resultOfErrno(errno);
  if (rename(journal.c_str(), withEnding(damaged, "-journal").c_str()) != 0 && errno != ENOENT)
    return resultOfErrno(errno);
  if (rename(made.c_str(), hive.c_str()) != 0) return resultOfErrno(errno);
  return syncFolder(hive.parent_path());
}

std::string wordsFor(Long result) {
  switch (result) {
    case kNotAHive:
      return "it is no hive, or one of a later version";
    case kAccessDenied:
      return "it may not be read";
    case kBusy:
      return "it is being written without an end";
    default:
      return "its tables can't be read";
  }
}

}  // namespace

std::vector<std::string> hiveFaults(const std::filesystem::path& path) {
  HiveFile file(path, HiveReaders::Owner);
  Long result = file.open();
  if (result == kNotFound) return {};
  sqlite::Database copy;
  if (result == kSuccess) result = openPrivateCopy(*file.file(), path, copy);
  if (result == kSuccess) result = hive::checkTables(copy.get());
  if (result == kNotFound) return {};
  std::vector<std::string> faults;
  if (copy != nullptr && result != kNotAHive) faults = faultsOf(copy.get(), kMostFaults);
  if (result != kSuccess && faults.empty()) faults.push_back(wordsFor(result));
  return faults;
}

Long repairHive(const std::filesystem::path& path, HiveRepair& repair) {
  struct stat before {};
  if (stat(path.c_str(), &before) != 0) return resultOfErrno(errno);
  HiveFile file(path, HiveReaders::Owner);
  const HiveLock turn(withEnding(path, "-lock"), before.st_mode & 0666U, kLongestWrite);
  if (!turn.isOpen()) return kAccessDenied;
  if (!turn.isHeld()) return kBusy;
  std::string bytes;
  if (const Long failure = readWhole(file, bytes); failure != kSuccess) return failure;
  SalvagedRows rows = salvage(bytes);
  if (rows.keys.empty() && rows.values.empty() && !hive::isMarkedAsHive(bytes)) return kNotAHive;
  gatherLost(rows);
  const Path made = withEnding(path, ".repaired");
  if (const Long failure = writeNew(rows, made, before); failure != kSuccess) return failure;
  repair = {rows.keys.size(), rows.values.size(), freePath(withEnding(path, ".damaged"))};
  return exchange(path, made, repair.damaged);
}

}  // namespace tessaly::platform
