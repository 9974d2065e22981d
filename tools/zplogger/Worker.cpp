#include "tools/zplogger/Worker.h"

#include <utility>

namespace tessaly::zplogger {

Worker::Worker(std::function<void()> work)
    : thread_([this, work = std::move(work)] {
        work();
        ended_.set_value();
      }) {}

Worker::~Worker() { thread_.join(); }

bool Worker::endsWithin(std::chrono::milliseconds time) {
  return end_.wait_for(time) == std::future_status::ready;
}

bool Worker::endsWithin(std::chrono::milliseconds time, const std::function<std::size_t()>& left) {
  std::size_t before = left();
  while (!endsWithin(time)) {
    const std::size_t now = left();
    if (now >= before) return false;
    before = now;
  }
  return true;
}

}  // namespace tessaly::zplogger
