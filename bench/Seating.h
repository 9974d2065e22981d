#pragma once

#include <sched.h>

namespace tessaly::bench {

/// Where two processes that wait for each other run. Where the system may choose, it now puts them side by
/// side and now one behind the other, and wakes an idle processor or not: the same call takes five times as
/// long from one moment to the next.
enum class Seats { Free, OneProcessor, TwoProcessors };

/// Seats this process, and partners that it gets from now on, until this object goes.
class Seating {
 public:
  explicit Seating(Seats seats);
  Seating(const Seating&) = delete;
  Seating& operator=(const Seating&) = delete;
  ~Seating();

  /// Whether there are processors enough.
  static bool isPossible(Seats seats);

  /// For a partner, at its start.
  static void takePartnersPlace();

 private:
  cpu_set_t before_;
};

}  // namespace tessaly::bench
