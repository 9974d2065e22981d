#pragma once

#include <atomic>
#include <cstddef>

namespace tessaly::bench {

/// A number that partners see and change too.
class Counter {
 public:
  Counter();
  Counter(const Counter&) = delete;
  Counter& operator=(const Counter&) = delete;
  ~Counter();

  void add() { number_->fetch_add(1, std::memory_order_relaxed); }
  std::size_t value() const { return number_->load(std::memory_order_relaxed); }

 private:
  std::atomic<std::size_t>* number_;
};

}  // namespace tessaly::bench
