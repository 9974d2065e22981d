#include "tests/soak/SoakClients.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <deque>
#include <random>
#include <stdexcept>
#include <thread>
#include <utility>

#include "tessaly/base/Text.h"
#include "tessaly/trace/ZPLoggerClient.h"
#include "tests/soak/SoakLine.h"

namespace tessaly::soak {
namespace {

using Clock = std::chrono::steady_clock;

class Pipe {
 public:
  Pipe() {
    if (pipe2(ends_, 0) != 0) throw std::runtime_error("no pipe");
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  ~Pipe() {
    closeEnd(0);
    closeEnd(1);
  }

  void put(std::uint64_t number) const {
    if (write(ends_[1], &number, sizeof number) != sizeof number) _exit(1);
  }

  /// Nothing where nobody will write any more.
  std::optional<std::uint64_t> take() {
    closeEnd(1);
    std::uint64_t number = 0;
    return read(ends_[0], &number, sizeof number) == sizeof number ? std::optional(number) : std::nullopt;
  }

  void end() { closeEnd(1); }

 private:
  void closeEnd(int end) {
    if (ends_[end] >= 0) close(std::exchange(ends_[end], -1));
  }

  int ends_[2];
};

bool isEnough(const Amount& amount, std::uint64_t sent, Clock::time_point begin) {
  if (amount.lines) return sent >= *amount.lines;
  return Clock::now() - begin >= amount.time;
}

std::uint64_t sendAll(ZPLoggerClient& client, unsigned number, const Amount& amount) {
  std::uint64_t sent = 0;
  std::mt19937 chance(number);
  std::uniform_int_distribution<Clock::rep> rest(0, 2 * amount.pause.count());
  const auto begin = Clock::now();
  while (!isEnough(amount, sent, begin) && client.Connected()) {
    ++sent;
    client.SendTrace(fromUtf8(lineText({number, sent})), 0, 0xFFFFFF, 0, True);
    if (amount.pause > Clock::duration::zero()) std::this_thread::sleep_for(Clock::duration(rest(chance)));
  }
  return sent;
}

/// The life of a client's process. It says that it is there, waits for the start, and tells what it has sent.
void live(unsigned number, const std::filesystem::path& folder, const Amount& amount, const Pipe& told,
          Pipe& start) {
  ZPLoggerClient client;
  client.Init(fromUtf8("soak" + std::to_string(number)), fromUtf8(logOf(folder, number).string()), u"");
  if (!client.Connected()) return;
  told.put(0);
  start.take();
  const std::uint64_t sent = sendAll(client, number, amount);
  if (client.Connected()) told.put(sent);
}

struct ClientProcess {
  Pipe told;
  pid_t process = -1;
};

}  // namespace

std::filesystem::path logOf(const std::filesystem::path& folder, unsigned client) {
  return folder / ("client" + std::to_string(client) + ".log");
}

std::optional<std::vector<std::uint64_t>> runClients(unsigned count, const std::filesystem::path& folder,
                                                     const Amount& amount) {
  Pipe start;
  // Each pipe is made just before its process, so that no earlier one holds its end open.
  std::deque<ClientProcess> clients;
  bool areThere = true;
  for (unsigned n = 0; areThere && n < count; ++n) {
    ClientProcess& client = clients.emplace_back();
    client.process = fork();
    if (client.process == 0) {
      prctl(PR_SET_PDEATHSIG, SIGKILL);
      live(n, folder, amount, client.told, start);
      _exit(0);
    }
    areThere = client.process > 0 && client.told.take().has_value();
  }
  start.end();
  std::vector<std::uint64_t> sent;
  for (ClientProcess& client : clients) {
    const auto told = areThere ? client.told.take() : std::nullopt;
    if (told) sent.push_back(*told);
    if (client.process > 0) waitpid(client.process, nullptr, 0);
  }
  return sent.size() == count ? std::optional(sent) : std::nullopt;
}

}  // namespace tessaly::soak
