#include "tests/hosts/qt/real/Display.h"

#include <stdexcept>

namespace tessaly::tests {

// The server looks for a free number and tells it.
Display::Display()
    : server_(TESSALY_XVFB,
              {"-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp", "-noreset"}) {
  const auto number = server_.readLine();
  if (!number) throw std::runtime_error("no display");
  name_ = ':' + *number;
}

void Display::perform(const std::vector<std::string>& words) const {
  Process program(TESSALY_XDOTOOL, words, {{variable()}});
  if (program.wait() != 0) throw std::runtime_error("the display does not take " + words.front());
}

}  // namespace tessaly::tests
