#include "tessaly/platform/linux/HiveFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "tessaly/platform/linux/Descriptor.h"

namespace tessaly::platform {
namespace {

using namespace registry_result;

std::filesystem::path parentOf(const std::filesystem::path& path) {
  const std::filesystem::path parent = path.parent_path();
  return parent.empty() ? "." : parent;
}

/// Gives what was just made its mode, and where root makes it in somebody's folder, that owner.
bool settle(const Descriptor& made, mode_t mode, const std::filesystem::path& folder) {
  struct stat status {};
  if (geteuid() == 0 && stat(folder.c_str(), &status) == 0 && status.st_uid != 0 &&
      fchown(made.get(), status.st_uid, status.st_gid) != 0)
    return false;
  return fchmod(made.get(), mode) == 0;
}

bool isMissing(const std::filesystem::path& path) {
  return access(path.c_str(), F_OK) != 0 && errno == ENOENT;
}

}  // namespace

Long resultOfErrno(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return kNotFound;
    case ENOSPC:
    case EDQUOT:
      return kDiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
    case ELOOP:
      return kAccessDenied;
    default:
      return kIoFailed;
  }
}

Long syncFolder(const std::filesystem::path& folder) {
  const Descriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // A folder that may be written but not read can't be asked for this; the file itself is safe.
  if (open.isOpen()) fsync(open.get());
  return kSuccess;
}

Long makeFolder(const std::filesystem::path& folder, HiveReaders readers) {
  if (folder.empty() || !isMissing(folder)) return kSuccess;
  if (folder != parentOf(folder)) {
    if (const Long failure = makeFolder(parentOf(folder), readers); failure != kSuccess) return failure;
  }
  const mode_t mode = readers == HiveReaders::Owner ? 0700 : 0755;
  if (mkdir(folder.c_str(), mode) != 0) return errno == EEXIST ? kSuccess : resultOfErrno(errno);
  const Descriptor made(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (!made.isOpen() || !settle(made, mode, parentOf(folder))) return resultOfErrno(errno);
  return syncFolder(parentOf(folder));
}

Long makeFile(const std::filesystem::path& path, unsigned mode) {
  const Descriptor file(open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
  if (!file.isOpen()) return errno == EEXIST ? kSuccess : resultOfErrno(errno);
  if (!settle(file, mode, parentOf(path)) || fsync(file.get()) != 0) return resultOfErrno(errno);
  return syncFolder(parentOf(path));
}

bool mayWriteFile(const std::filesystem::path& path) {
  std::filesystem::path there = parentOf(path);
  const bool fileAllows = isMissing(path) || faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
  // SQLite keeps its journal beside the file.
  while (isMissing(there) && there != parentOf(there)) there = parentOf(there);
  return fileAllows && faccessat(AT_FDCWD, there.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

}  // namespace tessaly::platform
