#include "tessaly/platform/linux/EndpointFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <tuple>

#include "tessaly/platform/linux/FileLock.h"
#include "tessaly/platform/linux/RuntimeFolder.h"

namespace tessaly::platform {
namespace {

constexpr std::size_t kDigits = 8;
constexpr std::size_t kMostTitleBytes = 65536;
constexpr std::string_view kTitleEnd = ".title";
constexpr std::string_view kSocketEnd = ".socket";

std::string nameOf(WindowHandle window, std::string_view end) {
  std::array<char, kDigits + 1> digits{};
  std::snprintf(digits.data(), digits.size(), "%08x", static_cast<unsigned>(window));
  return std::string(digits.data()).append(end);
}

/// The window that a file name says, or 0 where it is no title's.
WindowHandle windowOf(std::string_view name) {
  WindowHandle window = 0;
  if (name.size() != kDigits + kTitleEnd.size()) return 0;
  std::from_chars(name.data(), name.data() + kDigits, window, 16);
  return window > 0 && window <= kLastWindow && name == nameOf(window, kTitleEnd) ? window : 0;
}

struct Found {
  timespec made;
  WindowHandle window;
};

bool isBefore(const Found& a, const Found& b) {
  return std::tie(b.made.tv_sec, b.made.tv_nsec, a.window) <
         std::tie(a.made.tv_sec, a.made.tv_nsec, b.window);
}

timespec changeOf(const ChannelDescriptor& file) {
  struct stat status {};
  fstat(file.get(), &status);
  return status.st_mtim;
}

}  // namespace

EndpointFolder::EndpointFolder() : path_(channelFolderPath()), folder_(openChannelFolder(path_)) {}

std::string EndpointFolder::titleName(WindowHandle window) { return nameOf(window, kTitleEnd); }
std::string EndpointFolder::socketName(WindowHandle window) { return nameOf(window, kSocketEnd); }

ChannelDescriptor EndpointFolder::openTitle(WindowHandle window) const {
  if (!isOpen() || window <= 0 || window > kLastWindow) return {};
  const std::string name = titleName(window);
  return ChannelDescriptor::opened(
      [&] { return openat(get(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); });
}

/// A shared lock, since two that ask at a time must not take each other for the window.
EndpointFolder::State EndpointFolder::stateOf(const ChannelDescriptor& title) {
  if (!title.isOpen()) return State::Unknown;
  if (lockFile(title.get(), LOCK_SH | LOCK_NB)) return State::Dead;
  return errno == EWOULDBLOCK ? State::Alive : State::Unknown;
}

bool EndpointFolder::isAlive(WindowHandle window) const { return stateOf(openTitle(window)) == State::Alive; }

std::string EndpointFolder::title(WindowHandle window) const {
  const ChannelDescriptor file = openTitle(window);
  if (stateOf(file) != State::Alive) return {};
  std::string text(kMostTitleBytes, '\0');
  std::size_t size = 0;
  ssize_t got = 1;
  while (got > 0 && size < text.size()) {
    got = pread(file.get(), text.data() + size, text.size() - size, static_cast<off_t>(size));
    if (got > 0) size += static_cast<std::size_t>(got);
  }
  text.resize(size);
  return text;
}

/// The system's own call: what it reads with is closed in the child of a fork, as all descriptors here are.
std::vector<WindowHandle> EndpointFolder::names() const {
  std::vector<WindowHandle> found;
  alignas(dirent64) std::array<char, 4096> entries{};
  lseek(get(), 0, SEEK_SET);
  for (;;) {
    const ssize_t size = getdents64(get(), entries.data(), entries.size());
    if (size <= 0) return found;
    for (ssize_t place = 0; place < size;) {
      const auto* entry = reinterpret_cast<const dirent64*>(entries.data() + place);
      if (const WindowHandle window = windowOf(entry->d_name); window != 0) found.push_back(window);
      place += entry->d_reclen;
    }
  }
}

std::vector<WindowHandle> EndpointFolder::windows() const {
  std::vector<Found> alive;
  std::vector<WindowHandle> dead;
  for (const WindowHandle window : names()) {
    const ChannelDescriptor title = openTitle(window);
    const State state = stateOf(title);
    if (state == State::Alive) alive.push_back({changeOf(title), window});
    if (state == State::Dead) dead.push_back(window);
  }
  sweep(dead);
  std::sort(alive.begin(), alive.end(), isBefore);
  std::vector<WindowHandle> windows;
  windows.reserve(alive.size());
  for (const Found& found : alive) windows.push_back(found.window);
  return windows;
}

/// One that seemed dead may have been just about to be locked; under the folder's lock none is.
void EndpointFolder::sweep(const std::vector<WindowHandle>& dead) const {
  if (dead.empty() || !lockFile(get(), LOCK_EX | LOCK_NB)) return;
  for (const WindowHandle window : dead) {
    if (stateOf(openTitle(window)) == State::Dead) remove(window);
  }
  lockFile(get(), LOCK_UN);
}

/// The title last: without it nobody would know of the socket.
void EndpointFolder::remove(WindowHandle window) const {
  unlinkat(get(), socketName(window).c_str(), 0);
  unlinkat(get(), titleName(window).c_str(), 0);
}

sockaddr_un EndpointFolder::socketAddress(WindowHandle window) const {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::string path = path_ + "/" + socketName(window);
  if (path.size() >= sizeof address.sun_path)
    path = "/proc/self/fd/" + std::to_string(get()) + "/" + socketName(window);
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  return address;
}

}  // namespace tessaly::platform
