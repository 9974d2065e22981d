#pragma once

#include <condition_variable>
#include <mutex>

namespace tessaly::tests {

/// Lets one thread wait until another opens it, once for each opening. The library's own semaphores of g++ 12
/// may sleep through a release.
class Gate {
 public:
  void open() {
    const std::lock_guard lock(mutex_);
    isOpen_ = true;
    opened_.notify_one();
  }

  void pass() {
    std::unique_lock lock(mutex_);
    opened_.wait(lock, [this] { return isOpen_; });
    isOpen_ = false;
  }

 private:
  std::mutex mutex_;
  std::condition_variable opened_;
  bool isOpen_ = false;
};

}  // namespace tessaly::tests
