#pragma once

#include <cstdint>

namespace tessaly::zplogger {

/// A date and a time of day where the user is.
struct LocalTime {
  int year = 1970;
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;
  int millisecond = 0;
};

struct Moment {
  /// Milliseconds since some moment that stays the same; they never go back.
  std::int64_t ticks = 0;
  LocalTime local;
};

/// What time it is. Any thread may ask.
struct Clock {
  virtual ~Clock() = default;
  virtual Moment now() = 0;
};

/// The platform's own.
Clock& ownClock();

}  // namespace tessaly::zplogger
