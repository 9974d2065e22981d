#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tools/zplogger/Line.h"

namespace tessaly::zplogger {

/// Which lines are shown.
class Filter {
 public:
  explicit Filter(std::uint8_t level = 0, std::u16string_view text = {});

  /// Whether a line has the level or a greater one, and the text somewhere in its own, in any case.
  bool takes(const Line& line) const;

  std::uint8_t level() const { return level_; }
  const String& text() const { return text_; }

  /// What is shown, in words.
  std::string inWords() const;

 private:
  std::uint8_t level_;
  String text_;
  String upperCased_;
};

}  // namespace tessaly::zplogger
