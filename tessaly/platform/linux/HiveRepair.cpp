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

std::string contentOf(const Path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// A copy of the hive as it stands in one moment.
Long copySteadily(HiveFile& file, const Path& target) {
  Long result = file.open();
  if (result != kSuccess) return result;
  result = kBusy;
  for (int tries = 0; result == kBusy && tries < kMostTries; ++tries) {
    file.mark();
    result = copyHive(file, target);
  }
  return result;
}

Path copyIn(const PrivateFolder& folder) { return folder.path() / "copy.hive"; }

/// The hive's bytes without what an interrupted write has left. Where the journal can't be played back the
/// bytes come as they are.
Long readWhole(HiveFile& file, std::string& bytes) {
  const PrivateFolder folder;
  if (folder.path().empty()) return kIoFailed;
  if (const Long failure = copySteadily(file, copyIn(folder)); failure != kSuccess) return failure;
  sqlite::Database copy;
  if (sqlite::open(copyIn(folder), SQLITE_OPEN_READWRITE, copy) == SQLITE_OK) {
    sqlite::run(copy.get(), "PRAGMA schema_version");
  }
  copy.reset();
  bytes = contentOf(copyIn(folder));
  return kSuccess;
}

/// A version that can only come from damage is none.
bool isOfLaterVersion(std::string_view bytes) {
  constexpr std::uint32_t believable = 1000;
  const std::uint32_t version = hive::versionOf(bytes);
  return hive::isMarkedAsHive(bytes) && version > hive::kVersion && version < believable;
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

/// A file that is new and no link, with the owner and the rights of the one whose place it will take.
Long makeLike(const Path& target, const struct stat& before) {
  const Descriptor made(open(target.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
  if (!made.isOpen()) return resultOfErrno(errno);
  const bool mayStay = before.st_uid == geteuid() || fchown(made.get(), before.st_uid, before.st_gid) == 0;
  return mayStay && fchmod(made.get(), before.st_mode & 0666U) == 0 ? kSuccess : resultOfErrno(errno);
}

Long writeNew(const SalvagedRows& rows, const Path& target, const struct stat& before) {
  std::error_code ignored;
  std::filesystem::remove(target, ignored);
  std::filesystem::remove(withEnding(target, "-journal"), ignored);
  if (const Long failure = makeLike(target, before); failure != kSuccess) return failure;
  sqlite::Database database;
  Long result =
      sqlite::resultOf(sqlite::open(target, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOFOLLOW, database));
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
Long putInPlace(const Path& hive, const Path& made, const Path& damaged) {
  const Path journal = withEnding(hive, "-journal");
  // Where a file can't have two names, there is none for the hive for a moment.
  const bool isKept = link(hive.c_str(), damaged.c_str()) == 0 || rename(hive.c_str(), damaged.c_str()) == 0;
  if (!isKept) return resultOfErrno(errno);
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
  const PrivateFolder folder;
  const Long copied = folder.path().empty() ? kIoFailed : copySteadily(file, copyIn(folder));
  if (copied == kNotFound) return {};
  if (copied != kSuccess) return {wordsFor(copied)};
  if (!file.hasJournalModeOfHives()) return {"it is in a journal mode that hives don't have"};
  if (isOfLaterVersion(contentOf(copyIn(folder)))) return {"it was made by a later version"};
  sqlite::Database copy;
  Long result = sqlite::resultOf(sqlite::open(copyIn(folder), SQLITE_OPEN_READWRITE, copy));
  if (result == kSuccess) result = hive::checkTables(copy.get());
  if (result == kNotFound) return {};
  std::vector<std::string> faults;
  if (result != kNotAHive) faults = faultsOf(copy.get(), kMostFaults);
  if (result != kSuccess && faults.empty()) faults.emplace_back(wordsFor(result));
  return faults;
}

Long repairHive(const std::filesystem::path& path, HiveRepair& repair) {
  const Path target = std::filesystem::weakly_canonical(path);
  struct stat before {};
  if (stat(target.c_str(), &before) != 0) return resultOfErrno(errno);
  const HiveLock turn(target, before.st_mode & 0666U, std::chrono::steady_clock::now() + kLongestWrite);
  if (turn.failure() != kSuccess) return turn.failure();
  if (hiveFaults(target).empty() && before.st_size != 0) return kSuccess;
  HiveFile file(target, HiveReaders::Owner);
  std::string bytes;
  if (const Long failure = readWhole(file, bytes); failure != kSuccess) return failure;
  if (isOfLaterVersion(bytes)) return kNotAHive;
  SalvagedRows rows = salvage(bytes);
  if (rows.keys.empty() && rows.values.empty() && !hive::isMarkedAsHive(bytes)) return kNotAHive;
  gatherLost(rows);
  const Path made = withEnding(target, ".repaired");
  if (const Long failure = writeNew(rows, made, before); failure != kSuccess) return failure;
  repair = {rows.keys.size(), rows.values.size(), freePath(withEnding(target, ".damaged"))};
  return putInPlace(target, made, repair.damaged);
}

}  // namespace tessaly::platform
