#include "tools/zplogger/Clock.h"

#include <windows.h>

namespace tessaly::zplogger {
namespace {

struct OwnClock final : Clock {
  Moment now() override {
    SYSTEMTIME time = {};
    GetLocalTime(&time);
    return {static_cast<std::int64_t>(GetTickCount64()),
            {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, time.wMilliseconds}};
  }
};

}  // namespace

Clock& ownClock() {
  static OwnClock clock;
  return clock;
}

}  // namespace tessaly::zplogger
