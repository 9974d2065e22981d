#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <thread>

namespace tessaly::zplogger {

/// A thread that runs a function, which does not throw.
class Worker {
 public:
  explicit Worker(std::function<void()> work);
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  /// Waits for the function's end.
  ~Worker();

  /// Waits so long at most; whether it has ended.
  bool endsWithin(std::chrono::milliseconds time);

  /// The same again and again, as long as what is left of the work becomes less in this time.
  bool endsWithin(std::chrono::milliseconds time, const std::function<std::size_t()>& left);

 private:
  std::promise<void> ended_;
  std::future<void> end_ = ended_.get_future();
  std::thread thread_;
};

}  // namespace tessaly::zplogger
