// syslog(): it does not wait until anybody has read the line. Where no daemon listens, a process of the
// benchmark's own does while it runs, if it may.

#include <sys/socket.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

#include <array>
#include <iostream>
#include <memory>
#include <optional>
#include <string_view>

#include "bench/Folder.h"
#include "bench/Partner.h"
#include "bench/RoundTrips.h"

namespace tessaly::bench {
namespace {

constexpr std::string_view kPlace = "/dev/log";

class Socket {
 public:
  Socket() : number_(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
    address_.sun_family = AF_UNIX;
    kPlace.copy(address_.sun_path, sizeof address_.sun_path - 1);
  }
  Socket(const Socket&) = delete;
  Socket& operator=(const Socket&) = delete;
  ~Socket() { close(number_); }

  bool bind() const { return ::bind(number_, address(), sizeof address_) == 0; }
  bool connect() const { return ::connect(number_, address(), sizeof address_) == 0; }

  void read(const Partner::IsReady& isReady) const {
    std::array<char, 2000> line{};
    isReady();
    while (recv(number_, line.data(), line.size(), 0) >= 0) {
    }
  }

 private:
  const sockaddr* address() const { return reinterpret_cast<const sockaddr*>(&address_); }

  int number_;
  sockaddr_un address_{};
};

/// Reads what is sent to a place that was not there, and goes with it.
class Daemon {
 public:
  Daemon() : isThere_(socket_.bind()) {
    if (isThere_) partner_.emplace([this](const Partner::IsReady& isReady) { socket_.read(isReady); });
  }
  Daemon(const Daemon&) = delete;
  Daemon& operator=(const Daemon&) = delete;
  ~Daemon() {
    if (isThere_) unlink(kPlace.data());
  }

 private:
  Socket socket_;
  bool isThere_;
  std::optional<Partner> partner_;
};

class Log {
 public:
  Log() {
    if (access(kPlace.data(), F_OK) != 0) daemon_.emplace();
    openlog("tessaly-bench", LOG_NDELAY, LOG_USER);
  }
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;
  ~Log() { closelog(); }

 private:
  std::optional<Daemon> daemon_;
};

LineSender open() {
  const auto log = std::make_shared<Log>();
  if (!Socket().connect()) {
    std::cerr << "Benchmark without syslog: nobody listens at " << kPlace << '\n';
    return {};
  }
  return {[log] { syslog(LOG_INFO, "%s", kLine); }, {}};
}

const bool added = (addLineSender("syslog", &open), true);

}  // namespace
}  // namespace tessaly::bench
