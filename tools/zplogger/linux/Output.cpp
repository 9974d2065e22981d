#include "tools/zplogger/Output.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace tessaly::zplogger {
namespace {

std::string_view variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

/// A program that was started without an output has nobody to write to.
Written resultOf(int error) {
  if (error == EBADF) return Written::Done;
  return error == EPIPE ? Written::ReaderGone : Written::Failed;
}

class DescriptorOutput final : public Output {
 public:
  explicit DescriptorOutput(int number) : number_(number) {}

  Written write(std::string_view text) override {
    while (!text.empty()) {
      const ssize_t count = ::write(number_, text.data(), text.size());
      if (count < 0 && (errno == EINTR || waitsForRoom())) continue;
      if (count < 0) return resultOf(errno);
      text.remove_prefix(static_cast<std::size_t>(count));
    }
    return Written::Done;
  }

  std::size_t columns() override {
    winsize size = {};
    if (isatty(number_) == 0 || variable("TERM") == "dumb") return 0;
    const bool isKnown = ioctl(number_, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : 80;
  }

  bool hasTrueColour() override {
    const std::string_view colours = variable("COLORTERM");
    return isatty(number_) != 0 && variable("NO_COLOR").empty() && variable("TERM") != "dumb" &&
           (colours == "truecolor" || colours == "24bit");
  }

 private:
  /// Others that share the output may have made it one that does not wait by itself.
  bool waitsForRoom() const {
    if (errno != EAGAIN) return false;
    pollfd awaited = {number_, POLLOUT, 0};
    return poll(&awaited, 1, -1) >= 0 || errno == EINTR;
  }

  int number_;
};

}  // namespace

Output& standardOutput() {
  static DescriptorOutput output(STDOUT_FILENO);
  return output;
}

Output& standardErrors() {
  static DescriptorOutput errors(STDERR_FILENO);
  return errors;
}

}  // namespace tessaly::zplogger
