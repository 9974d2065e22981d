#include "tools/zplogger/linux/Folder.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "tessaly/base/Text.h"

namespace tessaly::zplogger {
namespace {

using tools::Descriptor;

constexpr int kFolderFlags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

/// What looks like files there are switches and inner matters of the system.
constexpr std::array<long, 13> kNoDisks = {
    PROC_SUPER_MAGIC, SELINUX_MAGIC,    SMACK_MAGIC,        PSTOREFS_MAGIC,      EFIVARFS_MAGIC,
    BINFMTFS_MAGIC,   SYSFS_MAGIC,      CGROUP_SUPER_MAGIC, CGROUP2_SUPER_MAGIC, DEBUGFS_MAGIC,
    TRACEFS_MAGIC,    SECURITYFS_MAGIC, BPF_FS_MAGIC};

bool isLink(int folder, const std::string& name) {
  struct stat status = {};
  return fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(status.st_mode);
}

/// A link that is asked for as a folder is said to be none.
std::string whyNotEntered(int folder, const std::string& name) {
  const int error = errno;
  if (isLink(folder, name)) return "there is a link in its path";
  return error == ENOENT ? "its folder is not there" : std::generic_category().message(error);
}

std::string checkDisk(int file) {
  struct statfs disk = {};
  const bool isNone =
      fstatfs(file, &disk) == 0 && std::find(kNoDisks.begin(), kNoDisks.end(), disk.f_type) != kNoDisks.end();
  return isNone ? "it is the system's own" : "";
}

std::string checkStatus(const struct stat& status) {
  if (S_ISLNK(status.st_mode)) return "it is a link";
  if (S_ISDIR(status.st_mode)) return "it is a folder";
  if (!S_ISREG(status.st_mode)) return "it is no normal file";
  if (status.st_nlink > 1) return "it has more than one name";
  if (status.st_uid != geteuid()) return "it belongs to another user";
  return {};
}

}  // namespace

std::string lastError() { return std::generic_category().message(errno); }

Place placeOf(const String& path) {
  const std::string bytes = toUtf8(path);
  Place place;
  place.folder = Descriptor(open("/", kFolderFlags));
  for (std::size_t begin = 1; place.folder.isOpen();) {
    const std::size_t end = bytes.find('/', begin);
    place.name = bytes.substr(begin, end - begin);
    if (end == std::string::npos) break;
    Descriptor next(openat(place.folder.number(), place.name.c_str(), kFolderFlags));
    if (!next.isOpen()) place.fault = whyNotEntered(place.folder.number(), place.name);
    place.folder = std::move(next);
    begin = end + 1;
  }
  return place;
}

FileCheck checkFile(const Place& place) {
  std::string fault = checkDisk(place.folder.number());
  if (!fault.empty()) return {false, fault};
  struct stat status = {};
  if (fstatat(place.folder.number(), place.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0)
    return {false, checkStatus(status)};
  return errno == ENOENT ? FileCheck{true, {}} : FileCheck{false, lastError()};
}

std::string checkOpenFile(int file) {
  // Another disk may begin at the file itself.
  std::string fault = checkDisk(file);
  if (!fault.empty()) return fault;
  struct stat status = {};
  return fstat(file, &status) == 0 ? checkStatus(status) : lastError();
}

}  // namespace tessaly::zplogger
