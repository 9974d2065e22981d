#pragma once

#include <filesystem>

#include "tessaly/platform/linux/HiveFile.h"
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

/// Copies a hive as it stands in one moment. Where an interrupted write is in it that this process may not
/// take back, the journal that does so comes too. The caller has the file's state marked; `kBusy` where the
/// file changed since.
Long copyHive(HiveFile& hive, const std::filesystem::path& target);

/// A copy in memory in which an interrupted write is taken back, on the same terms.
Long openPrivateCopy(HiveFile& hive, sqlite::Database& copy);

}  // namespace tessaly::platform
