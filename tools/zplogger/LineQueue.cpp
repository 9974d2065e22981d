#include "tools/zplogger/LineQueue.h"

#include <utility>

namespace tessaly::zplogger {

void LineQueue::push(Entry entry) {
  if (entries_.size() >= kMost) {
    ++missed_;
    return;
  }
  if (missed_ > 0) entries_.emplace_back(Missed{std::exchange(missed_, 0)});
  entries_.push_back(std::move(entry));
}

std::optional<Entry> LineQueue::pop() {
  if (entries_.empty()) {
    if (missed_ == 0) return std::nullopt;
    return Missed{std::exchange(missed_, 0)};
  }
  Entry front = std::move(entries_.front());
  entries_.pop_front();
  return front;
}

}  // namespace tessaly::zplogger
