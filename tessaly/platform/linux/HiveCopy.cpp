#include "tessaly/platform/linux/HiveCopy.h"

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

bool copyHive(sqlite3_file& hive, const std::filesystem::path& path, const std::filesystem::path& target) {
  std::error_code error;
  const bool hasJournal = std::filesystem::exists(journalOf(path), error);
  return copyFile(hive, target) &&
         (!hasJournal || std::filesystem::copy_file(journalOf(path), journalOf(target), error));
}

Long openPrivateCopy(sqlite3_file& hive, const std::filesystem::path& path, sqlite::Database& copy) {
  const PrivateFolder folder;
  if (folder.path().empty()) return kIoFailed;
  const std::filesystem::path target = folder.path() / "copy.hive";
  if (!copyHive(hive, path, target)) return kIoFailed;
  if (const int code = sqlite::open(target, SQLITE_OPEN_READWRITE, copy); code != SQLITE_OK)
    return sqlite::resultOf(code);
  // The first look plays the journal back, while the folder is still there.
  return sqlite::resultOf(sqlite::run(copy.get(), "PRAGMA schema_version"));
}

}  // namespace tessaly::platform
