#pragma once

#include <cstddef>
#include <string_view>

namespace tessaly::zplogger {

enum class Written { Done, ReaderGone, Failed };

/// A place to write to, for one thread.
struct Output {
  virtual ~Output() = default;

  /// Writes all of a text in UTF-8, however long that takes.
  virtual Written write(std::string_view text) = 0;

  /// How wide the terminal is, in columns; 0 where it is none or can't take back what it shows.
  virtual std::size_t columns() = 0;

  /// Whether it is a terminal that shows any colour.
  virtual bool hasTrueColour() = 0;
};

/// The platform's own.
Output& standardOutput();
Output& standardErrors();

}  // namespace tessaly::zplogger
