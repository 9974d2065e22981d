#pragma once

#include <windows.h>

#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly {
class Timer;
}

namespace tessaly::win32 {

/// The timers of one control, run by its window. One that ticks does not run until its tick has ended.
class Timers {
 public:
  /// The timers' numbers begin above this one, away from those that a host may give its own on the window.
  static constexpr UINT_PTR kNumbersBegin = 0x54650000;

  /// The timer ticks first when the interval has passed; error 7 where Windows has no more timers.
  void start(HWND window, Timer& timer, Long milliseconds);
  void stop(HWND window, const Timer& timer) noexcept;
  void stopAll(HWND window) noexcept;

  /// What came with WM_TIMER. One that was stopped meanwhile may still come, and is nobody's. The owner of
  /// this must be held.
  void tick(HWND window, UINT_PTR number);

 private:
  struct Entry {
    Timer* timer;
    Long interval;
    UINT_PTR number;
  };

  std::vector<Entry>::iterator find(UINT_PTR number);

  std::vector<Entry> entries_;
  UINT_PTR lastNumber_ = kNumbersBegin;
};

}  // namespace tessaly::win32
