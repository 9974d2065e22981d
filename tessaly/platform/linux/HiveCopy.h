#pragma once

#include <filesystem>

#include "tessaly/platform/linux/Sqlite.h"

namespace tessaly::platform {

/// A folder that only this user sees, gone with the object and all that is in it.
class PrivateFolder {
 public:
  PrivateFolder();
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;
  ~PrivateFolder();

  /// Empty where it could not be made.
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

/// Copies a hive, read through SQLite's own object of the open file, and its journal if there is one.
bool copyHive(sqlite3_file& hive, const std::filesystem::path& path, const std::filesystem::path& target);

/// Opens a private copy of a hive and its journal, in which an interrupted write is taken back; for a reader
/// who may not do so in the hive itself. `hive` is SQLite's own object of the open file. The copy has no name
/// any more when this returns. It is sound only if the hive did not change meanwhile, which the caller sees.
Long openPrivateCopy(sqlite3_file& hive, const std::filesystem::path& path, sqlite::Database& copy);

}  // namespace tessaly::platform
