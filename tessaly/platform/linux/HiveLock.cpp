#include "tessaly/platform/linux/HiveLock.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <thread>

namespace tessaly::platform {
namespace {

using Clock = std::chrono::steady_clock;

constexpr off_t kTurn = 0;
constexpr off_t kWork = 1;
constexpr std::chrono::microseconds kPause(100);

bool changeLock(int file, off_t place, short type) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = place;
  lock.l_len = 1;
  return fcntl(file, F_OFD_SETLK, &lock) == 0;
}

/// The kernel's own waiting has no bound, so this asks again and again.
bool lockUntil(int file, off_t place, Clock::time_point end) {
  while (!changeLock(file, place, F_WRLCK)) {
    if (Clock::now() >= end) return false;
    std::this_thread::sleep_for(kPause);
  }
  return true;
}

Descriptor openLock(const std::string& path, unsigned mode) {
  constexpr int flags = O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NOCTTY;
  Descriptor file(open(path.c_str(), flags));
  if (file.isOpen()) return file;
  file = Descriptor(open(path.c_str(), flags | O_CREAT, mode));
  if (file.isOpen()) fchmod(file.get(), mode);
  return file;
}

}  // namespace

HiveLock::HiveLock(const std::string& path, unsigned mode, std::chrono::milliseconds longest)
    : file_(openLock(path, mode)) {
  const auto end = Clock::now() + longest;
  if (!file_.isOpen() || !lockUntil(file_.get(), kTurn, end)) return;
  held_ = lockUntil(file_.get(), kWork, end);
  changeLock(file_.get(), kTurn, F_UNLCK);
}

}  // namespace tessaly::platform
