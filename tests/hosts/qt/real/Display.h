#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/hosts/qt/real/Places.h"
#include "tests/support/Process.h"

namespace tessaly::tests {

/// A display in memory that belongs to this program, with a pointer and a keyboard but no window manager.
class Display {
 public:
  /// A display that does not start is a `std::runtime_error`.
  Display();

  /// For the programs that are to be on it: a variable and its value.
  std::pair<std::string, std::string> variable() const { return {"DISPLAY", name_}; }

  void move(ScreenPoint point) const {
    perform({"mousemove", std::to_string(point.x), std::to_string(point.y)});
  }
  void press() const { perform({"mousedown", "1"}); }
  void release() const { perform({"mouseup", "1"}); }
  void key(const std::string& name) const { perform({"key", name}); }

 private:
  void perform(const std::vector<std::string>& words) const;

  Process server_;
  std::string name_;
};

}  // namespace tessaly::tests
