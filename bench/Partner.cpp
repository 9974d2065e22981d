#include "bench/Partner.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "bench/Folder.h"
#include "bench/Seating.h"

namespace tessaly::bench {
namespace {

[[noreturn]] void play(const Partner::Part& part, int ready) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  Seating::takePartnersPlace();
  part([ready] {
    if (write(ready, "r", 1) != 1) _exit(1);
  });
  _exit(0);
}

}  // namespace

Partner::Partner(const Part& part) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) fail("no pipe");
  process_ = fork();
  if (process_ == 0) {
    close(ends[0]);
    play(part, ends[1]);
  }
  close(ends[1]);
  char byte = 0;
  if (process_ < 0 || read(ends[0], &byte, 1) != 1) fail("no other process");
  close(ends[0]);
}

Partner::~Partner() {
  kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
}

}  // namespace tessaly::bench
