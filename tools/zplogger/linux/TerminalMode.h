#pragma once

#include <termios.h>

namespace tessaly::zplogger {

/// The mode of the terminal that is the standard input: while entered, keys come singly and are not shown.
class TerminalMode {
 public:
  TerminalMode() = default;
  TerminalMode(const TerminalMode&) = delete;
  TerminalMode& operator=(const TerminalMode&) = delete;
  ~TerminalMode() { leave(); }

  void enter();

  /// Enters again where others may have changed the mode meanwhile; what stood before stays the same.
  void renew();

  /// Puts the mode back that stood before.
  void leave();

  /// The terminal is another program's now, which has a mode of its own in it.
  void lose() { isEntered_ = false; }

  bool isEntered() const { return isEntered_; }

  /// Whether the standard input is a terminal that this program may read and change now.
  static bool isOurs();

 private:
  bool set() const;

  termios before_ = {};
  bool isEntered_ = false;
};

}  // namespace tessaly::zplogger
