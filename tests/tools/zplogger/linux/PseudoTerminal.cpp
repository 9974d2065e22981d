#include "tests/tools/zplogger/linux/PseudoTerminal.h"

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include "tests/support/linux/Words.h"

namespace tessaly::tests {
namespace {

constexpr int kLongestWait = 30'000;

termios modeOf(int terminal) {
  termios mode = {};
  if (tcgetattr(terminal, &mode) != 0) throw std::runtime_error("the terminal has no mode");
  return mode;
}

}  // namespace

PseudoTerminal::PseudoTerminal(const std::vector<std::string>& words,
                               const std::vector<std::pair<std::string, std::string>>& environment) {
  std::vector<std::string> arguments = words;
  std::vector<std::string> variables = environmentWith(environment);
  const std::vector<char*> argumentPointers = pointersTo(arguments);
  const std::vector<char*> variablePointers = pointersTo(variables);
  winsize size = {};
  size.ws_col = 100;
  size.ws_row = 30;
  process_ = forkpty(&terminal_, nullptr, nullptr, &size);
  if (process_ < 0) throw std::runtime_error("no pseudo-terminal");
  if (process_ == 0) {
    execve(argumentPointers[0], argumentPointers.data(), variablePointers.data());
    _exit(127);
  }
}

PseudoTerminal::~PseudoTerminal() {
  if (process_ > 0) {
    kill(process_, SIGKILL);
    wait();
  }
  hangUp();
}

std::string PseudoTerminal::readUntil(std::string_view text) {
  for (;;) {
    const auto place = unread_.find(text);
    if (place != std::string::npos) {
      std::string read = unread_.substr(0, place + text.size());
      unread_.erase(0, read.size());
      return read;
    }
    pollfd awaited = {terminal_, POLLIN, 0};
    std::array<char, 4096> bytes{};
    const bool hasCome = poll(&awaited, 1, kLongestWait) == 1;
    const ssize_t count = hasCome ? read(terminal_, bytes.data(), bytes.size()) : 0;
    if (count <= 0) throw std::runtime_error("'" + std::string(text) + "' is not in '" + unread_ + "'");
    unread_.append(bytes.data(), static_cast<std::size_t>(count));
  }
}

void PseudoTerminal::type(std::string_view keys) const {
  if (write(terminal_, keys.data(), keys.size()) != static_cast<ssize_t>(keys.size()))
    throw std::runtime_error("the terminal takes no keys");
}

bool PseudoTerminal::takesLines() const { return (modeOf(terminal_).c_lflag & ICANON) != 0; }

bool PseudoTerminal::showsKeys() const { return (modeOf(terminal_).c_lflag & ECHO) != 0; }

void PseudoTerminal::takeLines() const {
  termios mode = modeOf(terminal_);
  mode.c_lflag |= static_cast<tcflag_t>(ICANON | ECHO);
  if (tcsetattr(terminal_, TCSANOW, &mode) != 0) throw std::runtime_error("the terminal keeps its mode");
}

void PseudoTerminal::waitForStop() const {
  int status = 0;
  while (waitpid(process_, &status, WUNTRACED) < 0 && errno == EINTR) {
  }
}

void PseudoTerminal::signal(int number) const { kill(process_, number); }

void PseudoTerminal::hangUp() {
  if (terminal_ >= 0) close(terminal_);
  terminal_ = -1;
}

int PseudoTerminal::wait() {
  int status = 0;
  while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {
  }
  process_ = 0;
  return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace tessaly::tests
