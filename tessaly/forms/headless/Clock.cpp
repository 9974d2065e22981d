#include "tessaly/forms/headless/Clock.h"

#include <algorithm>
#include <limits>

#include "tessaly/forms/Timer.h"
#include "tessaly/forms/headless/Place.h"

namespace tessaly::headless {
namespace {

/// While a timer ticks it is not due.
constexpr std::int64_t kTicks = std::numeric_limits<std::int64_t>::max();

}  // namespace

void Clock::start(Timer& timer, Place& place, Long milliseconds) {
  stop(timer);
  entries_.push_back({&timer, &place, milliseconds, now_ + milliseconds, ++lastNumber_});
}

void Clock::stop(const Timer& timer) {
  std::erase_if(entries_, [&](const Entry& entry) { return entry.timer == &timer; });
}

void Clock::stopAll(const Place& place) {
  std::erase_if(entries_, [&](const Entry& entry) { return entry.place == &place; });
}

void Clock::advance(Long milliseconds) {
  const std::int64_t end = now_ + milliseconds;
  while (Entry* const next = nextUntil(end)) {
    now_ = next->due;
    tick(*next);
  }
  now_ = std::max(now_, end);
}

Clock::Entry* Clock::nextUntil(std::int64_t end) {
  const auto next =
      std::min_element(entries_.begin(), entries_.end(), [](const Entry& one, const Entry& other) {
        return one.due != other.due ? one.due < other.due : one.number < other.number;
      });
  return next != entries_.end() && next->due <= end ? &*next : nullptr;
}

void Clock::tick(Entry& entry) {
  const std::int64_t number = entry.number;
  entry.due = kTicks;
  const auto held = entry.place->shared_from_this();
  entry.timer->tick();
  beginAgain(number);
}

// A tick may have stopped its timer or begun it anew, and then there is no entry of this number.
void Clock::beginAgain(std::int64_t number) {
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& candidate) { return candidate.number == number; });
  if (entry == entries_.end()) return;
  entry->due = now_ + entry->interval;
  entry->number = ++lastNumber_;
}

}  // namespace tessaly::headless
