#include "tools/zplogger/View.h"

#include <chrono>
#include <utility>

namespace tessaly::zplogger {
namespace {

/// So that keys act soon while many lines come.
constexpr std::size_t kMostEntriesAtOnce = 200;
constexpr std::size_t kMostAnswers = 100;

/// How often the number of lines that wait is told anew.
constexpr std::chrono::milliseconds kCountEvery{250};

}  // namespace

template <class Change>
void View::change(Change change) {
  {
    const std::lock_guard lock(mutex_);
    change();
  }
  changed_.notify_one();
}

void View::show(Line line) {
  change([&] {
    if (filter_.takes(line)) queue_.push(std::move(line));
  });
}

void View::tell(std::string notice) {
  change([&] { queue_.push(Notice{std::move(notice)}); });
}

void View::answer(std::string notice) {
  change([&] {
    if (answers_.size() < kMostAnswers) answers_.emplace_back(Notice{std::move(notice)});
  });
}

Filter View::filter() const {
  const std::lock_guard lock(mutex_);
  return filter_;
}

void View::setFilter(const Filter& filter) {
  change([&] { filter_ = filter; });
}

bool View::isPaused() const {
  const std::lock_guard lock(mutex_);
  return status_.isPaused;
}

void View::pause(bool isPaused) {
  change([&] {
    status_.isPaused = isPaused;
    isStatusNew_ = true;
  });
}

void View::ask(std::optional<String> typed) {
  change([&] {
    status_.typed = std::move(typed);
    isStatusNew_ = true;
  });
}

void View::redraw() {
  change([&] {
    ++status_.drawing;
    isStatusNew_ = true;
  });
}

std::size_t View::waiting() const {
  const std::lock_guard lock(mutex_);
  return queue_.size();
}

void View::finish() {
  change([&] { isFinishing_ = true; });
}

bool View::isDue() const {
  return isFinishing_ || isStatusNew_ || !answers_.empty() || (!status_.isHeld() && !queue_.isEmpty());
}

View::Work View::next() {
  std::unique_lock lock(mutex_);
  // While lines are held nothing but their number changes, which is not worth a word for each.
  const auto due = [this] { return isDue(); };
  if (status_.isHeld()) {
    changed_.wait_for(lock, kCountEvery, due);
  } else {
    changed_.wait(lock, due);
  }
  isStatusNew_ = false;
  Work work;
  work.entries = std::exchange(answers_, {});
  while ((isFinishing_ || !status_.isHeld()) && work.entries.size() < kMostEntriesAtOnce) {
    auto entry = queue_.pop();
    if (!entry) break;
    const Line* line = std::get_if<Line>(&*entry);
    if (line == nullptr || filter_.takes(*line)) work.entries.push_back(std::move(*entry));
  }
  work.isLast = isFinishing_ && queue_.isEmpty();
  if (isFinishing_) return work;
  work.status = status_;
  work.status.waiting = queue_.size();
  return work;
}

}  // namespace tessaly::zplogger
