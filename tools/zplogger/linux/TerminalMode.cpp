#include "tools/zplogger/linux/TerminalMode.h"

#include <unistd.h>

namespace tessaly::zplogger {

void TerminalMode::enter() {
  if (isEntered_ || tcgetattr(STDIN_FILENO, &before_) != 0) return;
  isEntered_ = set();
}

void TerminalMode::renew() {
  if (isEntered_ && isOurs()) set();
}

bool TerminalMode::set() const {
  termios mode = before_;
  mode.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
  mode.c_cc[VMIN] = 1;
  mode.c_cc[VTIME] = 0;
  return tcsetattr(STDIN_FILENO, TCSANOW, &mode) == 0;
}

void TerminalMode::leave() {
  // At once: a terminal that the user has stopped would let it wait for ever.
  if (isEntered_ && isOurs()) tcsetattr(STDIN_FILENO, TCSANOW, &before_);
  isEntered_ = false;
}

bool TerminalMode::isOurs() {
  const pid_t foreground = tcgetpgrp(STDIN_FILENO);
  // A terminal of another session has no foreground for this one, and is that one's.
  return foreground >= 0 && foreground == getpgrp();
}

}  // namespace tessaly::zplogger
