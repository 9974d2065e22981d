#include "tests/support/Process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <stdexcept>

#include "tests/support/linux/Words.h"

namespace tessaly::tests {
namespace {

class End {
 public:
  explicit End(int number = -1) : number_(number) {}
  End(const End&) = delete;
  End& operator=(const End&) = delete;
  ~End() { close(); }

  int get() const { return number_; }

  void close() {
    if (number_ >= 0) ::close(number_);
    number_ = -1;
  }

 private:
  int number_;
};

struct Pipe {
  Pipe() : Pipe(make()) {}
  explicit Pipe(const std::array<int, 2>& ends) : reading(ends[0]), writing(ends[1]) {}

  static std::array<int, 2> make() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    return ends;
  }

  End reading;
  End writing;
};

/// Keeps a broken pipe from ending the test, without touching what the test does about signals.
class NoBrokenPipe {
 public:
  NoBrokenPipe() {
    sigemptyset(&signal_);
    sigaddset(&signal_, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signal_, &before_);
  }
  NoBrokenPipe(const NoBrokenPipe&) = delete;
  NoBrokenPipe& operator=(const NoBrokenPipe&) = delete;
  ~NoBrokenPipe() {
    const timespec now{};
    sigtimedwait(&signal_, nullptr, &now);
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }

 private:
  sigset_t signal_{};
  sigset_t before_{};
};

/// How a program begins: with these ends as its input and output, no other descriptor, and signals untouched
/// by what the test does about them.
class Beginning {
 public:
  Beginning(int input, int output, bool joinErrors) {
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_adddup2(&files, input, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
    if (joinErrors) posix_spawn_file_actions_adddup2(&files, output, STDERR_FILENO);
    posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
    posix_spawnattr_init(&attributes);
    sigset_t signals{};
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes, &signals);
    sigaddset(&signals, SIGPIPE);
    sigaddset(&signals, SIGTERM);
    posix_spawnattr_setsigdefault(&attributes, &signals);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }
  Beginning(const Beginning&) = delete;
  Beginning& operator=(const Beginning&) = delete;
  ~Beginning() {
    posix_spawn_file_actions_destroy(&files);
    posix_spawnattr_destroy(&attributes);
  }

  posix_spawn_file_actions_t files{};
  posix_spawnattr_t attributes{};
};

int exitCodeOf(int status) { return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status); }

}  // namespace

struct Process::Parts {
  Pipe input;
  Pipe output;
  pid_t number = 0;
  std::optional<int> exitCode;
};

Process::Process(std::string_view program, const std::vector<std::string>& arguments,
                 const ProcessOptions& options)
    : parts_(std::make_unique<Parts>()) {
  const auto path = std::filesystem::read_symlink("/proc/self/exe").parent_path() / program;
  std::vector<std::string> words = {path};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<std::string> environment = environmentWith(options.environment);
  const Beginning beginning(parts_->input.reading.get(), parts_->output.writing.get(), options.joinErrors);
  const int failure = posix_spawn(&parts_->number, path.c_str(), &beginning.files, &beginning.attributes,
                                  pointersTo(words).data(), pointersTo(environment).data());
  if (failure != 0) throw std::runtime_error(path.string() + " can't be started");
  parts_->input.reading.close();
  parts_->output.writing.close();
}

Process::~Process() {
  kill();
  wait();
}

std::uint32_t Process::id() const { return static_cast<std::uint32_t>(parts_->number); }

bool Process::readMore() {
  std::array<char, 4096> bytes{};
  ssize_t count = 0;
  do {
    count = read(parts_->output.reading.get(), bytes.data(), bytes.size());
  } while (count < 0 && errno == EINTR);
  if (count <= 0) return false;
  unread_.append(bytes.data(), static_cast<std::size_t>(count));
  return true;
}

bool Process::write(std::string_view bytes) {
  const NoBrokenPipe noBrokenPipe;
  while (!bytes.empty()) {
    const ssize_t count = ::write(parts_->input.writing.get(), bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

void Process::closeInput() { parts_->input.writing.close(); }

void Process::kill() {
  if (!parts_->exitCode) ::kill(parts_->number, SIGKILL);
}

bool Process::terminate() { return !parts_->exitCode && ::kill(parts_->number, SIGTERM) == 0; }

void Process::suspend() {
  if (parts_->exitCode || ::kill(parts_->number, SIGSTOP) != 0) return;
  siginfo_t told{};
  // It stands still only when this has told so.
  while (waitid(P_PID, static_cast<id_t>(parts_->number), &told, WSTOPPED) != 0 && errno == EINTR) {
  }
}

void Process::resume() {
  if (!parts_->exitCode) ::kill(parts_->number, SIGCONT);
}

int Process::wait() {
  if (!parts_->exitCode) {
    int status = 0;
    while (waitpid(parts_->number, &status, 0) < 0 && errno == EINTR) {
    }
    parts_->exitCode = exitCodeOf(status);
  }
  return *parts_->exitCode;
}

}  // namespace tessaly::tests
