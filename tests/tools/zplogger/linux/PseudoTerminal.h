#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessaly::tests {

/// A program at a terminal of its own, as its session's leader. It is killed with this object.
class PseudoTerminal {
 public:
  /// Variables stand beside the test's own, or in their place.
  explicit PseudoTerminal(const std::vector<std::string>& words,
                          const std::vector<std::pair<std::string, std::string>>& environment = {});
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;
  ~PseudoTerminal();

  /// Waits for a text to appear, and gives all that has come up to its end since the last time. A
  /// `std::runtime_error` where the terminal goes without it, or it takes half a minute.
  std::string readUntil(std::string_view text);

  /// Presses keys.
  void type(std::string_view keys) const;

  /// Whether the terminal takes whole lines, as it does at first.
  bool takesLines() const;
  bool showsKeys() const;

  /// Sets the mode that takes whole lines, as a shell does.
  void takeLines() const;

  void signal(int number) const;

  /// Waits until a signal has stopped the program.
  void waitForStop() const;

  /// Takes the terminal away.
  void hangUp();

  /// Waits for the program's end: its exit code, or the negative number of the signal that has ended it.
  int wait();

 private:
  pid_t process_ = 0;
  int terminal_ = -1;
  std::string unread_;
};

}  // namespace tessaly::tests
