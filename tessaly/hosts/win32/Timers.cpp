#include "tessaly/hosts/win32/Timers.h"

#include <algorithm>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/Timer.h"

namespace tessaly::win32 {
namespace {

void begin(HWND window, UINT_PTR number, Long milliseconds) {
  const auto interval = static_cast<UINT>(milliseconds);
  if (SetTimer(window, number, interval, nullptr) == 0) throw RuntimeError(RuntimeError::OutOfMemory);
}

}  // namespace

void Timers::start(HWND window, Timer& timer, Long milliseconds) {
  stop(window, timer);
  const UINT_PTR number = ++lastNumber_;
  entries_.reserve(entries_.size() + 1);
  begin(window, number, milliseconds);
  entries_.push_back({&timer, milliseconds, number});
}

void Timers::stop(HWND window, const Timer& timer) noexcept {
  const auto found = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& entry) { return entry.timer == &timer; });
  if (found == entries_.end()) return;
  KillTimer(window, found->number);
  entries_.erase(found);
}

void Timers::stopAll(HWND window) noexcept {
  for (const Entry& entry : entries_) KillTimer(window, entry.number);
  entries_.clear();
}

void Timers::tick(HWND window, UINT_PTR number) {
  const auto due = find(number);
  if (due == entries_.end()) return;
  KillTimer(window, number);
  due->timer->tick();
  const auto after = find(number);
  if (after != entries_.end()) begin(window, number, after->interval);
}

std::vector<Timers::Entry>::iterator Timers::find(UINT_PTR number) {
  return std::find_if(entries_.begin(), entries_.end(),
                      [&](const Entry& entry) { return entry.number == number; });
}

}  // namespace tessaly::win32
