#pragma once

#include <cstdint>
#include <vector>

#include "tessaly/base/Types.h"

class QObject;

namespace tessaly {
class Timer;
}

namespace tessaly::qt {

/// The timers of a control that run, each by one timer of Qt's; none where none runs. It must be held while
/// one ticks.
class Timers {
 public:
  /// The owner gets the timer events.
  explicit Timers(QObject& owner) : owner_(&owner) {}

  /// The timer ticks first when the interval has passed, and then each time that it has since a tick's end.
  void start(Timer& timer, Long milliseconds);
  void stop(const Timer& timer);
  void stopAll();

  /// A timer event with this number has come, of one of these or another.
  void tick(int id);

 private:
  struct Entry {
    Timer* timer;
    Long interval;

    /// Of Qt's timer; 0 while the timer ticks.
    int id;
    std::int64_t number;
  };

  void beginAgain(std::int64_t number);

  QObject* owner_;
  std::vector<Entry> entries_;
  std::int64_t lastNumber_ = 0;
};

}  // namespace tessaly::qt
