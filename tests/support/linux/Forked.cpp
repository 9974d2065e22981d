#include "tests/support/linux/Forked.h"

#include <fcntl.h>
#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace tessaly::tests {

pid_t start(const std::function<int()>& work) {
  const pid_t process = fork();
  if (process == 0) _exit(work());
  return process;
}

int endOf(pid_t process) {
  int status = 0;
  while (waitpid(process, &status, 0) != process) {
    if (errno != EINTR) throw std::runtime_error("no such process");
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

void killNow(pid_t process) {
  kill(process, SIGKILL);
  endOf(process);
}

int asNobody(const std::function<int()>& work) {
  constexpr int failed = 99;
  return inProcess([&] {
    constexpr unsigned nobody = 65534;
    const bool isRoot = geteuid() == 0;
    if (isRoot && (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0)) return failed;
    return work();
  });
}

Telling::Telling() {
  if (pipe2(ends_, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
}

Telling::~Telling() {
  close(ends_[0]);
  close(ends_[1]);
}

void Telling::tell(long number) const noexcept {
  if (write(ends_[1], &number, sizeof number) != sizeof number) std::abort();
}

long Telling::hear() const {
  long number = 0;
  ssize_t size = -1;
  do size = read(ends_[0], &number, sizeof number);
  while (size < 0 && errno == EINTR);
  if (size != sizeof number) throw std::runtime_error("nothing was told");
  return number;
}

}  // namespace tessaly::tests
