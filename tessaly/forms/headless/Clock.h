#pragma once

#include <cstdint>
#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly {
class Timer;
}

namespace tessaly::headless {

class Place;

/// A form's time, which stands still until it is moved, and the timers that run by it. It must be held while
/// it moves, since the form may go meanwhile.
class Clock {
 public:
  /// The timer ticks first when the interval has passed, and then each time that it has since a tick's end.
  void start(Timer& timer, Place& place, Long milliseconds);
  void stop(const Timer& timer);
  void stopAll(const Place& place);

  /// Lets the timers tick whose time comes, in the order of it; of equal ones the one that was begun first.
  void advance(Long milliseconds);

 private:
  struct Entry {
    Timer* timer;
    Place* place;
    Long interval;
    std::int64_t due;
    std::int64_t number;
  };

  Entry* nextUntil(std::int64_t end);
  void tick(Entry& entry);
  void beginAgain(std::int64_t number);

  std::vector<Entry> entries_;
  std::int64_t now_ = 0;
  std::int64_t lastNumber_ = 0;
};

}  // namespace tessaly::headless
