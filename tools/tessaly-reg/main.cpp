// tessaly-reg, the administrator's hand on the settings: the hives and the terminal behind the commands.

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <csignal>
#include <exception>
#include <iostream>

#include "tessaly/platform/keys/HiveFile.h"
#include "tools/tessaly-reg/Run.h"

namespace {

using tessaly::platform::hiveAt;
using tessaly::platform::HiveReaders;
using tessaly::reg::Arguments;
using tessaly::reg::Stores;

/// An answer other than yes or no is asked for again.
std::optional<bool> ask(const std::string& question) {
  if (isatty(STDIN_FILENO) == 0) return std::nullopt;
  for (std::string answer; std::cerr << question << std::flush, std::getline(std::cin, answer);) {
    if (answer == "y" || answer == "Y" || answer == "yes" || answer == "Yes" || answer == "YES") return true;
    if (answer == "n" || answer == "N" || answer == "no" || answer == "No" || answer == "NO") return false;
  }
  std::cerr << '\n';
  return false;
}

Stores openStores(const Arguments& arguments) {
  Stores stores;
  stores.machine.file =
      arguments.machineFile ? *arguments.machineFile : tessaly::platform::machineHivePath().string();
  stores.machine.store = hiveAt(stores.machine.file, HiveReaders::Everybody);
  stores.user.file = arguments.userFile ? *arguments.userFile : tessaly::platform::userHivePath().string();
  stores.user.store = hiveAt(stores.user.file, HiveReaders::Owner);
  stores.userName = tessaly::platform::registryUserName();
  return stores;
}

/// A descriptor that the caller has closed would be given to the first file that is opened, and what is
/// written to the terminal would go into a hive. What stands in its place can be neither read nor written.
void fillClosedDescriptors() {
  for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(standard, F_GETFD) < 0) open("/dev/null", standard == STDIN_FILENO ? O_WRONLY : O_RDONLY);
  }
}

bool isReaderGone() {
  pollfd output = {STDOUT_FILENO, POLLOUT, 0};
  return poll(&output, 1, 0) == 1 && (output.revents & POLLERR) != 0;
}

/// What could not be written is told, unless the reader has all that he wanted.
int checkOutput(int code) {
  if (std::cout.flush()) return code;
  if (!isReaderGone()) std::cerr << "tessaly-reg: can't write the output\n";
  return tessaly::reg::kFailed;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    fillClosedDescriptors();
    std::signal(SIGPIPE, SIG_IGN);
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    return checkOutput(tessaly::reg::run(words, {std::cout, std::cerr, ask, openStores}));
  } catch (const std::exception& error) {
    std::cerr << "tessaly-reg: " << error.what() << '\n';
    return tessaly::reg::kFailed;
  }
}
