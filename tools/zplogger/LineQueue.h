#pragma once

#include <deque>
#include <optional>

#include "tools/zplogger/Line.h"

namespace tessaly::zplogger {

/// What waits to be shown, in its order, up to a bound. What comes when it is full is counted, and the count
/// stands where it would have stood.
class LineQueue {
 public:
  static constexpr std::size_t kMost = 10'000;

  void push(Entry entry);

  /// The first one; nothing where none waits.
  std::optional<Entry> pop();

  bool isEmpty() const { return entries_.empty() && missed_ == 0; }

  /// How many have come that were not taken, those without room among them.
  std::size_t size() const { return entries_.size() + missed_; }

 private:
  std::deque<Entry> entries_;
  std::size_t missed_ = 0;
};

}  // namespace tessaly::zplogger
