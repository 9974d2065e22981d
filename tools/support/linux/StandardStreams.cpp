#include "tools/support/linux/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <initializer_list>

namespace tessaly::tools {

void prepareStandardStreams() {
  for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(standard, F_GETFD) < 0) open("/dev/null", standard == STDIN_FILENO ? O_WRONLY : O_RDONLY);
  }
  std::signal(SIGPIPE, SIG_IGN);
}

}  // namespace tessaly::tools
