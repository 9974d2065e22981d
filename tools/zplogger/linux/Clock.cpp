#include "tools/zplogger/Clock.h"

#include <ctime>

namespace tessaly::zplogger {
namespace {

timespec timeOf(clockid_t which) {
  timespec result = {};
  clock_gettime(which, &result);
  return result;
}

int millisecondsOf(const timespec& time) { return static_cast<int>(time.tv_nsec / 1'000'000); }

LocalTime localTime(const timespec& time) {
  tm parts = {};
  localtime_r(&time.tv_sec, &parts);
  return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,       parts.tm_hour,
          parts.tm_min,         parts.tm_sec,     millisecondsOf(time)};
}

struct OwnClock final : Clock {
  // localtime_r need not look for the time zone itself.
  OwnClock() { tzset(); }

  Moment now() override {
    const timespec steady = timeOf(CLOCK_MONOTONIC);
    return {steady.tv_sec * std::int64_t{1000} + millisecondsOf(steady), localTime(timeOf(CLOCK_REALTIME))};
  }
};

}  // namespace

Clock& ownClock() {
  static OwnClock clock;
  return clock;
}

}  // namespace tessaly::zplogger
