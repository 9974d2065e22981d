#pragma once

#include <string>
#include <string_view>

#include "tools/zplogger/Clock.h"
#include "tools/zplogger/Records.h"

/// Lines of a log file: date, time, level, client and text, each behind a blank, in UTF-8. What is no
/// character of a line is made visible, so that a record is always one line.
namespace tessaly::zplogger {

/// The line of a record, with its end.
std::string logLine(const LocalTime& time, const TraceRecord& record, std::u16string_view client);

/// How many bytes `beginsAsLog` looks at.
inline constexpr std::size_t kStampSize = 24;

/// Whether bytes begin with a date and a time as the lines do.
bool beginsAsLog(std::string_view bytes);

/// A time as "21:40:24.123".
std::string timeText(const LocalTime& time);

}  // namespace tessaly::zplogger
