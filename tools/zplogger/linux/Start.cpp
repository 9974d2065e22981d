#include "tools/zplogger/Start.h"

#include <csignal>

#include "tools/support/linux/StandardStreams.h"

namespace tessaly::zplogger {

std::vector<std::string> start(int argc, char** argv) {
  tools::prepareStandardStreams();
  // A log file that may grow no further is a write that fails, and no reason to end.
  std::signal(SIGXFSZ, SIG_IGN);
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

}  // namespace tessaly::zplogger
