#include "tessaly/platform/linux/CloseDescriptors.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>

namespace tessaly::platform {
namespace {

/// A limit may have been lowered below what was opened before, or be so high that to try each number would
/// take minutes.
constexpr rlim_t kLeastTried = 1U << 16U;
constexpr rlim_t kMostTried = 1U << 20U;

/// -1 for a name that is no number.
int numberIn(const char* name) {
  int number = 0;
  for (; *name >= '0' && *name <= '9'; ++name) number = number * 10 + (*name - '0');
  return *name == '\0' ? number : -1;
}

void closeEntries(const char* entries, long size, int first, int list) {
  for (long at = 0; at < size;) {
    const auto* const entry = reinterpret_cast<const dirent64*>(entries + at);
    const int number = numberIn(static_cast<const char*>(entry->d_name));
    if (number >= first && number != list) close(number);
    at += entry->d_reclen;
  }
}

/// By the system's own list of them; false where there is none.
bool closeListed(int first) {
  // The host may have left no room for the list.
  close(first);
  const int list = open("/proc/self/fd", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (list < 0) return false;
  alignas(dirent64) std::array<char, 4096> entries;
  long size = 0;
  do {
    size = syscall(SYS_getdents64, list, entries.data(), entries.size());
    closeEntries(entries.data(), size, first, list);
  } while (size > 0);
  close(list);
  return size == 0;
}

void closeEach(int first) {
  rlimit limit{kMostTried, kMostTried};
  getrlimit(RLIMIT_NOFILE, &limit);
  const int end = static_cast<int>(std::clamp(limit.rlim_cur, kLeastTried, kMostTried));
  for (int number = first; number < end; ++number) close(number);
}

}  // namespace

void closeDescriptorsFrom(int first) {
  // Kernels before 5.9 do not have the call, and some containers refuse it.
  if (syscall(SYS_close_range, first, ~0U, 0) == 0) return;
  if (!closeListed(first)) closeEach(first);
}

}  // namespace tessaly::platform
