// tessaly-reg, the administrator's hand on the settings: the hives and the terminal behind the commands.

#include <poll.h>
#include <unistd.h>

#include <exception>
#include <iostream>

#include "tessaly/platform/keys/HiveFile.h"
#include "tools/support/linux/StandardStreams.h"
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
    tessaly::tools::prepareStandardStreams();
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    return checkOutput(tessaly::reg::run(words, {std::cout, std::cerr, ask, openStores}));
  } catch (const std::exception& error) {
    std::cerr << "tessaly-reg: " << error.what() << '\n';
    return tessaly::reg::kFailed;
  }
}
