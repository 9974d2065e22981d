#include "tessaly/hosts/qt/Timers.h"

#include <QObject>
#include <algorithm>
#include <utility>

#include "tessaly/forms/Timer.h"

namespace tessaly::qt {

void Timers::start(Timer& timer, Long milliseconds) {
  stop(timer);
  entries_.push_back({&timer, milliseconds, owner_->startTimer(milliseconds), ++lastNumber_});
}

void Timers::stop(const Timer& timer) {
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& candidate) { return candidate.timer == &timer; });
  if (entry == entries_.end()) return;
  if (entry->id != 0) owner_->killTimer(entry->id);
  entries_.erase(entry);
}

void Timers::stopAll() {
  while (!entries_.empty()) stop(*entries_.back().timer);
}

void Timers::tick(int id) {
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& candidate) { return candidate.id == id; });
  if (entry == entries_.end()) return;
  owner_->killTimer(std::exchange(entry->id, 0));
  const std::int64_t number = entry->number;
  entry->timer->tick();
  beginAgain(number);
}

// A tick may have stopped its timer or begun it anew, and then there is no entry of this number.
void Timers::beginAgain(std::int64_t number) {
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& candidate) { return candidate.number == number; });
  if (entry != entries_.end()) entry->id = owner_->startTimer(entry->interval);
}

}  // namespace tessaly::qt
