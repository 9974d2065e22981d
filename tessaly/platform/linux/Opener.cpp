#include "tessaly/platform/linux/Opener.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <string_view>

#include "tessaly/platform/linux/CloseDescriptors.h"

namespace tessaly::platform {
namespace {

constexpr const char* kOpener = "xdg-open";
constexpr std::string_view kUsualFolders = "/usr/local/bin:/usr/bin:/bin";

/// What the process in between ends with beside the program's own exit code; no opener has such ones.
constexpr int kStillThere = 200;
constexpr int kTooLong = 201;
constexpr int kNoStart = 202;
constexpr int kKilled = 203;
constexpr int kNoFolder = 204;

/// What is to be run, ready before there is a process for it, which could make none of it any more.
struct Program {
  const char* path;
  char* const* words;
  const char* directory;
  timespec moment;
};

timespec timeOf(std::chrono::nanoseconds time) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
  return {seconds.count(), (time - seconds).count()};
}

bool isProgram(const std::string& path) {
  struct stat found {};
  return stat(path.c_str(), &found) == 0 && S_ISREG(found.st_mode) && access(path.c_str(), X_OK) == 0;
}

/// All signals held off from this thread, so that no handler of the host's runs in a process that is a copy
/// of it.
class NoSignals {
 public:
  NoSignals() {
    sigset_t all{};
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  NoSignals(const NoSignals&) = delete;
  NoSignals& operator=(const NoSignals&) = delete;
  ~NoSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_{};
};

/// Whoever wants to end this thread waits: a process that is a copy of it would end there instead, in the
/// midst of the host's code.
class NotCancelled {
 public:
  NotCancelled() { pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &before_); }
  NotCancelled(const NotCancelled&) = delete;
  NotCancelled& operator=(const NotCancelled&) = delete;
  ~NotCancelled() { pthread_setcancelstate(before_, nullptr); }

 private:
  int before_ = PTHREAD_CANCEL_ENABLE;
};

/// A fork that runs no handlers of the host's and lets the child's end be told by a signal of one's choice,
/// or by none. The child may only make plain calls of the system.
pid_t forkPlainly(int signalOfEnd) {
  return static_cast<pid_t>(syscall(SYS_clone, signalOfEnd, nullptr, nullptr, nullptr, nullptr));
}

/// Ignored signals would stay ignored in another program.
void restoreSignals() {
  struct sigaction usual {};
  usual.sa_handler = SIG_DFL;
  for (int number = 1; number < NSIG; ++number) sigaction(number, &usual, nullptr);
  sigset_t none{};
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// A host's output that goes into a pipe would not end before a browser does.
void dropDescriptors() {
  // The first takes no room but that of the host's, who may have left none.
  close(STDIN_FILENO);
  const int nowhere = open("/dev/null", O_RDWR);
  for (const int output : {STDOUT_FILENO, STDERR_FILENO}) {
    if (dup2(nowhere, output) < 0) close(output);
  }
  closeDescriptorsFrom(STDERR_FILENO + 1);
}

[[noreturn]] void becomeProgram(const Program& program) {
  setsid();
  restoreSignals();
  if (program.directory != nullptr && chdir(program.directory) != 0) _exit(kNoFolder);
  execve(program.path, program.words, environ);
  _exit(errno == E2BIG ? kTooLong : kNoStart);
}

/// The process in between: the program is its child, whom the system takes over when it goes.
[[noreturn]] void watchProgram(const Program& program) {
  // Where the host ignores the ends of its children, the system would not tell them here either.
  struct sigaction told {};
  told.sa_handler = SIG_DFL;
  sigaction(SIGCHLD, &told, nullptr);
  // Before there is a program, so that what the host closes while it is waited for is closed.
  dropDescriptors();
  const pid_t child = forkPlainly(SIGCHLD);
  if (child < 0) _exit(kTooLong);
  if (child == 0) becomeProgram(program);
  sigset_t ends{};
  sigemptyset(&ends);
  sigaddset(&ends, SIGCHLD);
  sigtimedwait(&ends, nullptr, &program.moment);
  int status = 0;
  if (waitpid(child, &status, WNOHANG) != child) _exit(kStillThere);
  _exit(WIFEXITED(status) ? WEXITSTATUS(status) : kKilled);
}

/// The end of a child that only who names it can wait for.
int codeOf(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, __WALL) < 0) {
    if (errno != EINTR) return kStillThere;
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : kStillThere;
}

Opened openedOf(int code) {
  switch (code) {
    case kStillThere:
      return {Opening::GoesOn};
    case kTooLong:
      return {Opening::NoMemory};
    case kNoStart:
      return {Opening::NotStarted};
    case kNoFolder:
      return {Opening::NoFolder};
    case kKilled:
      return {Opening::Ended, -1};
    default:
      return {Opening::Ended, code};
  }
}

pid_t startWatching(const Program& program) {
  const NoSignals noSignals;
  const pid_t watcher = forkPlainly(0);
  if (watcher == 0) watchProgram(program);
  return watcher;
}

}  // namespace

std::optional<std::string> openerPath() {
  const char* const told = std::getenv("PATH");
  std::string_view folders = told != nullptr ? told : kUsualFolders;
  while (!folders.empty()) {
    const std::string_view folder = folders.substr(0, folders.find(':'));
    folders.remove_prefix(folder.size() < folders.size() ? folder.size() + 1 : folder.size());
    std::string path = std::string(folder).append("/").append(kOpener);
    if (folder.starts_with('/') && isProgram(path)) return path;
  }
  return std::nullopt;
}

Opened runOpener(const std::string& program, const std::string& argument, const char* directory,
                 std::chrono::nanoseconds moment) {
  std::string name = kOpener;
  std::string word = argument;
  const std::array<char*, 3> words = {name.data(), word.data(), nullptr};
  const NotCancelled notCancelled;
  const pid_t watcher = startWatching({program.c_str(), words.data(), directory, timeOf(moment)});
  return watcher < 0 ? Opened{Opening::NoMemory} : openedOf(codeOf(watcher));
}

}  // namespace tessaly::platform
