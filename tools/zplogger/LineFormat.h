#pragma once

#include <string>

#include "tools/zplogger/Line.h"

namespace tessaly::zplogger {

/// How lines look: time, client, level and text, in columns. With colours, the text has those of its record.
/// All in UTF-8 with a line end, and nothing in it that a terminal would obey but the colours.
class LineFormat {
 public:
  explicit LineFormat(bool hasColours) : hasColours_(hasColours) {}

  /// The column of clients grows with the longest that has come, up to a bound.
  std::string line(const Line& line);
  std::string missed(const Missed& missed) const;

  /// A message of the tool itself.
  std::string notice(const Notice& notice) const;

 private:
  std::string client(const Line& line);
  std::string dim(const std::string& text) const;

  bool hasColours_;
  std::size_t clientColumns_ = 12;
};

}  // namespace tessaly::zplogger
