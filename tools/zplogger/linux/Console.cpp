#include "tools/zplogger/Console.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <deque>
#include <initializer_list>
#include <optional>
#include <stdexcept>

#include "tools/support/linux/Descriptor.h"
#include "tools/zplogger/KeyDecoder.h"
#include "tools/zplogger/linux/TerminalMode.h"

namespace tessaly::zplogger {
namespace {

/// How often it is looked whether a terminal that is another program's has come back, should nobody tell.
constexpr int kLookAtTerminalEvery = 1000;

sigset_t signals(std::initializer_list<int> numbers) {
  sigset_t result = {};
  sigemptyset(&result);
  for (const int number : numbers) sigaddset(&result, number);
  return result;
}

/// Who has started this program may have told it to ignore a signal.
bool isIgnored(int number) {
  struct sigaction action = {};
  return sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

/// All that is waited for comes by a descriptor.
int waitForSignals() {
  sigset_t awaited = signals({});
  for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGQUIT, SIGTSTP, SIGCONT}) {
    if (!isIgnored(number)) sigaddset(&awaited, number);
  }
  pthread_sigmask(SIG_BLOCK, &awaited, nullptr);
  return signalfd(-1, &awaited, SFD_CLOEXEC | SFD_NONBLOCK);
}

/// Stops this program as if it had not waited for the signal, until it is told to go on.
void stop() {
  const sigset_t stopping = signals({SIGTSTP});
  raise(SIGTSTP);
  pthread_sigmask(SIG_UNBLOCK, &stopping, nullptr);
  pthread_sigmask(SIG_BLOCK, &stopping, nullptr);
}

}  // namespace

struct Console::Parts {
  Parts();

  /// Takes the terminal where this program may use it now.
  bool hasKeys();
  std::optional<Happening> takeSignal();
  void readKeys();
  std::optional<Happening> look();

  tools::Descriptor signalled{waitForSignals()};
  tools::Descriptor ended{eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
  TerminalMode mode;
  KeyDecoder decoder;
  std::deque<char32_t> keys;
  bool isTerminal = isatty(STDIN_FILENO) != 0;
  bool outIsTerminal = isatty(STDOUT_FILENO) != 0;
};

Console::Parts::Parts() {
  if (!signalled.isOpen() || !ended.isOpen()) throw std::runtime_error("can't wait for signals");
  // In the background a program may show lines, whatever the terminal says, and a key that is another's is
  // an error, not a stop.
  std::signal(SIGTTOU, SIG_IGN);
  std::signal(SIGTTIN, SIG_IGN);
  hasKeys();
}

bool Console::Parts::hasKeys() {
  if (!isTerminal) return false;
  if (!TerminalMode::isOurs()) {
    mode.lose();
    return false;
  }
  mode.enter();
  return true;
}

std::optional<Happening> Console::Parts::takeSignal() {
  signalfd_siginfo signal = {};
  if (read(signalled.number(), &signal, sizeof signal) != static_cast<ssize_t>(sizeof signal)) return {};
  if (signal.ssi_signo == SIGTSTP) {
    mode.leave();
    stop();
  } else if (signal.ssi_signo != SIGCONT) {
    return Happening{Happening::Kind::End};
  }
  // A shell may have set a mode of its own while this program was stopped.
  if (hasKeys()) mode.renew();
  return Happening{Happening::Kind::Back};
}

void Console::Parts::readKeys() {
  std::array<char, 256> bytes{};
  const ssize_t count = read(STDIN_FILENO, bytes.data(), bytes.size());
  if (count > 0) {
    for (const char32_t key : decoder.take({bytes.data(), static_cast<std::size_t>(count)}))
      keys.push_back(key);
  } else if (count == 0 || (errno != EINTR && errno != EAGAIN && TerminalMode::isOurs())) {
    isTerminal = false;
  }
}

std::optional<Happening> Console::Parts::look() {
  const bool reads = hasKeys();
  std::array<pollfd, 4> awaited = {pollfd{signalled.number(), POLLIN, 0}, pollfd{ended.number(), POLLIN, 0},
                                   pollfd{STDOUT_FILENO, 0, 0}, pollfd{reads ? STDIN_FILENO : -1, POLLIN, 0}};
  if (poll(awaited.data(), awaited.size(), isTerminal && !reads ? kLookAtTerminalEvery : -1) <= 0) return {};
  if (awaited[0].revents != 0) return takeSignal();
  if (awaited[1].revents != 0) return Happening{Happening::Kind::End};
  // Both come without being asked for.
  if ((awaited[2].revents & (POLLERR | POLLHUP)) != 0)
    return Happening{outIsTerminal ? Happening::Kind::End : Happening::Kind::ReaderGone};
  if (awaited[3].revents != 0) readKeys();
  return {};
}

Console::Console() : parts_(std::make_unique<Parts>()) {}

Console::~Console() = default;

Happening Console::wait() {
  while (parts_->keys.empty()) {
    if (const auto happening = parts_->look()) return *happening;
  }
  const char32_t key = parts_->keys.front();
  parts_->keys.pop_front();
  return {Happening::Kind::Key, key};
}

void Console::end() {
  const std::uint64_t one = 1;
  // It can only fail where an end is told already.
  [[maybe_unused]] const ssize_t told = write(parts_->ended.number(), &one, sizeof one);
}

void Console::restore() {
  parts_->isTerminal = false;
  parts_->mode.leave();
}

}  // namespace tessaly::zplogger
