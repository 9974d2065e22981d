#include "tessaly/platform/linux/HiveLock.h"

#include <fcntl.h>

#include <cerrno>
#include <thread>

#include "tessaly/platform/linux/HiveFolder.h"

namespace tessaly::platform {
namespace {

using Clock = std::chrono::steady_clock;

constexpr off_t kTurn = 0;
constexpr off_t kWork = 1;
constexpr std::chrono::microseconds kBetweenLooks(100);

bool changeLock(int file, off_t place, short type) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = place;
  lock.l_len = 1;
  return fcntl(file, F_OFD_SETLK, &lock) == 0;
}

/// The kernel's own waiting has no bound, so this asks again and again.
Long lockUntil(int file, off_t place, Clock::time_point end) {
  while (!changeLock(file, place, F_WRLCK)) {
    const bool isTaken = errno == EAGAIN || errno == EACCES || errno == EINTR;
    if (!isTaken) return registry_result::kIoFailed;
    if (Clock::now() >= end) return registry_result::kBusy;
    std::this_thread::sleep_for(kBetweenLooks);
  }
  return registry_result::kSuccess;
}

}  // namespace

HiveLock::HiveLock(const std::filesystem::path& hive, unsigned mode, Clock::time_point end) {
  std::filesystem::path path = hive;
  path += "-lock";
  failure_ = makeFile(path, mode);
  if (failure_ != registry_result::kSuccess) return;
  file_ = Descriptor(open(path.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NOCTTY));
  failure_ = file_.isOpen() ? lockUntil(file_.get(), kTurn, end) : resultOfErrno(errno);
  if (failure_ != registry_result::kSuccess) return;
  failure_ = lockUntil(file_.get(), kWork, end);
  changeLock(file_.get(), kTurn, F_UNLCK);
}

}  // namespace tessaly::platform
