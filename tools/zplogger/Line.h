#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>

#include "tools/zplogger/Clock.h"
#include "tools/zplogger/Records.h"

namespace tessaly::zplogger {

/// A record on its way to the terminal.
struct Line {
  LocalTime time;
  String client;

  /// 0 where it is not known.
  std::uint32_t process = 0;
  TraceRecord record;
};

/// What the tool itself has to say, in UTF-8.
struct Notice {
  std::string text;
};

/// So many lines had no room here.
struct Missed {
  std::size_t count = 0;
};

using Entry = std::variant<Line, Notice, Missed>;

}  // namespace tessaly::zplogger
