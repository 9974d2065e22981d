#include "tessaly/platform/linux/HiveCopy.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <vector>

namespace tessaly::platform {
namespace {

using namespace registry_result;

std::filesystem::path journalOf(std::filesystem::path path) { return path += "-journal"; }

bool copyFile(sqlite3_file& hive, const std::filesystem::path& target) {
  sqlite3_int64 size = 0;
  if (hive.pMethods->xFileSize(&hive, &size) != SQLITE_OK) return false;
  std::ofstream out(target, std::ios::binary);
  std::vector<char> block(1 << 16);
  for (sqlite3_int64 place = 0; place < size;) {
    const auto part = std::min(size - place, static_cast<sqlite3_int64>(block.size()));
    if (hive.pMethods->xRead(&hive, block.data(), static_cast<int>(part), place) != SQLITE_OK) return false;
    out.write(block.data(), part);
    place += part;
  }
  return static_cast<bool>(out.flush());
}

using FileState = std::array<std::int64_t, 4>;

/// What changes when a file does; nothing where there is none.
FileState stateOf(const std::filesystem::path& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return {};
  return {static_cast<std::int64_t>(status.st_ino), status.st_size, status.st_mtim.tv_sec,
          status.st_mtim.tv_nsec};
}

int copyPages(sqlite3* from, sqlite3* to) {
  sqlite3_backup* const backup = sqlite3_backup_init(to, "main", from, "main");
  if (backup == nullptr) return sqlite3_extended_errcode(to);
  sqlite3_backup_step(backup, -1);
  return sqlite3_backup_finish(backup);
}

}  // namespace

PrivateFolder::PrivateFolder() {
  std::error_code error;
  std::string name = (std::filesystem::temp_directory_path(error) / "tessaly-XXXXXX").string();
  if (!error && mkdtemp(name.data()) != nullptr) path_ = name;
}

PrivateFolder::~PrivateFolder() {
  std::error_code ignored;
  if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
}

Long copyHive(HiveFile& hive, const std::filesystem::path& target) {
  if (sqlite::run(hive.database(), "BEGIN; PRAGMA user_version") == SQLITE_OK) {
    // While this transaction lasts nobody changes the file, and whoever was interrupted is taken back.
    const bool isCopied = copyFile(*hive.file(), target);
    sqlite::run(hive.database(), "ROLLBACK");
    return isCopied ? kSuccess : kIoFailed;
  }
  sqlite::run(hive.database(), "ROLLBACK");
  const std::filesystem::path journal = journalOf(hive.realPath());
  const FileState none{};
  const FileState before = stateOf(journal);
  std::error_code error;
  const bool isCopied = copyFile(*hive.file(), target) &&
                        (before == none || std::filesystem::copy_file(journal, journalOf(target), error));
  if (!hive.isAsMarked() || stateOf(journal) != before) return kBusy;
  return isCopied ? kSuccess : kIoFailed;
}

Long openPrivateCopy(HiveFile& hive, sqlite::Database& copy) {
  const PrivateFolder folder;
  if (folder.path().empty()) return kIoFailed;
  const std::filesystem::path target = folder.path() / "copy.hive";
  if (const Long failure = copyHive(hive, target); failure != kSuccess) return failure;
  sqlite::Database onDisk;
  int code = sqlite::open(target, SQLITE_OPEN_READWRITE, onDisk);
  if (code == SQLITE_OK) code = sqlite::open(":memory:", SQLITE_OPEN_READWRITE, copy);
  if (code == SQLITE_OK) code = copyPages(onDisk.get(), copy.get());
  return sqlite::resultOf(code);
}

}  // namespace tessaly::platform
