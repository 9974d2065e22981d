#include "tessaly/platform/linux/Endpoint.h"

#include <fcntl.h>
#include <sys/random.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

#include "tessaly/platform/linux/FileLock.h"

namespace tessaly::platform {
namespace {

constexpr mode_t kEndpointMode = 0600;
constexpr int kMostNumbersTried = 100;

WindowHandle randomNumber() {
  std::uint32_t number = 0;
  while (getrandom(&number, sizeof number, 0) != sizeof number) {
  }
  return static_cast<WindowHandle>(number & 0x7FFFFFFFU);
}

/// Makes the title's file, whose name is the window's claim to its number.
ChannelDescriptor makeTitle(const EndpointFolder& folder, WindowHandle& window) {
  ChannelDescriptor title;
  errno = EEXIST;
  for (int tries = 0; !title.isOpen() && errno == EEXIST && tries < kMostNumbersTried; ++tries) {
    do window = randomNumber();
    while (window == 0);
    const std::string name = EndpointFolder::titleName(window);
    title = ChannelDescriptor::opened([&] {
      return openat(folder.get(), name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                    kEndpointMode);
    });
  }
  return title;
}

}  // namespace

/// The title's lock comes last: from then on others find the window, and they find it whole.
std::optional<Endpoint> Endpoint::made(std::string_view title) {
  EndpointFolder folder;
  if (!folder.isOpen() || !lockFile(folder.get(), LOCK_SH)) return std::nullopt;
  WindowHandle window = 0;
  ChannelDescriptor file = makeTitle(folder, window);
  if (!file.isOpen()) return std::nullopt;
  Endpoint made(std::move(folder), window, std::move(file));
  if (!made.write(title) || !made.listen() || !lockFile(made.title_.get(), LOCK_EX)) return std::nullopt;
  lockFile(made.folder_.get(), LOCK_UN);
  return made;
}

/// The system's own time of a change is too coarse to tell which of two windows is newer.
bool Endpoint::write(std::string_view text) const {
  timespec times[2] = {};
  if (clock_gettime(CLOCK_REALTIME, &times[0]) != 0) return false;
  times[1] = times[0];
  return fchmod(title_.get(), kEndpointMode) == 0 &&
         ::write(title_.get(), text.data(), text.size()) == static_cast<ssize_t>(text.size()) &&
         futimens(title_.get(), times) == 0;
}

bool Endpoint::listen() {
  const sockaddr_un address = folder_.socketAddress(window_);
  const std::string name = EndpointFolder::socketName(window_);
  listener_ = ChannelDescriptor::opened(
      [] { return socket(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK | SOCK_CLOEXEC, 0); });
  return listener_.isOpen() &&
         bind(listener_.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
         fchmodat(folder_.get(), name.c_str(), kEndpointMode, 0) == 0 &&
         ::listen(listener_.get(), SOMAXCONN) == 0;
}

/// Where a fork has closed the title, the window is the parent's; so it is where the object was moved away.
Endpoint::~Endpoint() {
  if (title_.isOpen()) folder_.remove(window_);
}

}  // namespace tessaly::platform
