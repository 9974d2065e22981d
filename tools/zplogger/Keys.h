#pragma once

#include <optional>

#include "tools/zplogger/View.h"

namespace tessaly::zplogger {

/// What the keys of the terminal do. For one thread.
class Keys {
 public:
  explicit Keys(View& view) : view_(view) {}

  /// Takes the character of a key; false where it ends the tool.
  bool press(char32_t key);

 private:
  void type(char32_t key);
  void moveLevel(int by);
  void setFilter(const Filter& filter);

  View& view_;

  /// The text that is being typed.
  std::optional<String> typed_;
};

}  // namespace tessaly::zplogger
