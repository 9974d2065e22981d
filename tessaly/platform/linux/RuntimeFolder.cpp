#include "tessaly/platform/linux/RuntimeFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace tessaly::platform {
namespace {

constexpr mode_t kOwnersRights = 0700;

/// Of a program that runs with another's rights the environment is not believed.
std::string folderFromEnvironment(const char* name) {
  const char* value = secure_getenv(name);
  std::string folder = value != nullptr && *value == '/' ? value : "";
  while (folder.ends_with('/')) folder.pop_back();
  return folder;
}

bool isOwn(const struct stat& status) { return S_ISDIR(status.st_mode) && status.st_uid == geteuid(); }

/// Where a program runs as another user in this one's environment, it must not make files here.
bool isOwnFolder(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && isOwn(status);
}

bool isPrivate(const ChannelDescriptor& folder) {
  struct stat status {};
  return fstat(folder.get(), &status) == 0 && isOwn(status) && (status.st_mode & kOthersRights) == 0;
}

/// An umask may have kept rights from the owner too.
bool giveOwnersRights(const ChannelDescriptor& folder) {
  struct stat status {};
  if (fstat(folder.get(), &status) != 0) return false;
  if ((status.st_mode & kOwnersRights) == kOwnersRights) return true;
  // The system has no call that changes the mode of what is only named by a descriptor.
  return chmod(("/proc/self/fd/" + std::to_string(folder.get())).c_str(), kOwnersRights) == 0;
}

}  // namespace

std::string channelFolderPath() {
  const std::string runtime = folderFromEnvironment("XDG_RUNTIME_DIR");
  if (!runtime.empty() && isOwnFolder(runtime)) return runtime + "/tessaly";
  const std::string temporary = folderFromEnvironment("TMPDIR");
  return (temporary.empty() ? "/tmp" : temporary) + "/tessaly-" + std::to_string(geteuid());
}

ChannelDescriptor openChannelFolder(const std::string& path) {
  if (mkdir(path.c_str(), kOwnersRights) != 0 && errno != EEXIST) return {};
  const auto place = ChannelDescriptor::opened(
      [&] { return open(path.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC); });
  if (!place.isOpen() || !isPrivate(place) || !giveOwnersRights(place)) return {};
  return ChannelDescriptor::opened(
      [&] { return openat(place.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
}

}  // namespace tessaly::platform
