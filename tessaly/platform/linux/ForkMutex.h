#pragma once

#include <pthread.h>

#include <mutex>

namespace tessaly::platform {

/// A mutex for each tag that a fork waits for, so that the child finds it free and what it guards whole. It
/// is there until the program ends, also for what destructors of statics do. Ask for it once when the program
/// starts: where a fork meets a thread that asks for the first time, the child waits for ever.
template <class Tag>
std::mutex& forkMutex() {
  static std::mutex mutex;
  [[maybe_unused]] static const int registered =
      pthread_atfork([] { mutex.lock(); }, [] { mutex.unlock(); }, [] { mutex.unlock(); });
  return mutex;
}

}  // namespace tessaly::platform
