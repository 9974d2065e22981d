#include "tessaly/forms/Timer.h"

#include "tessaly/forms/Guarded.h"
#include "tessaly/forms/UserControl.h"

namespace tessaly {
namespace {

constexpr Long kLongest = 65535;

}  // namespace

Timer::Timer(UserControl& parent, std::function<void()> onTick)
    : parent_(&parent), onTick_(std::move(onTick)) {}

Timer::~Timer() {
  if (isRunning()) parent_->container().setTimer(*this, 0);
}

Boolean Timer::Enabled() const { return enabled_; }

void Timer::Enabled(Boolean enabled) {
  if ((enabled != 0) != (enabled_ != 0) && interval_ > 0) begin(enabled, interval_);
  enabled_ = enabled;
}

Long Timer::Interval() const { return interval_; }

void Timer::Interval(Long milliseconds) {
  if (milliseconds < 0 || milliseconds > kLongest) throw RuntimeError(RuntimeError::InvalidPropertyValue);
  if (enabled_) begin(enabled_, milliseconds);
  interval_ = milliseconds;
}

void Timer::tick() noexcept {
  if (!isRunning()) return;
  guarded(*parent_, [this] {
    const std::function<void()> onTick = onTick_;
    if (onTick) onTick();
  });
}

bool Timer::isRunning() const { return enabled_ && interval_ > 0; }

void Timer::begin(Boolean enabled, Long interval) {
  parent_->container().setTimer(*this, enabled ? interval : 0);
}

}  // namespace tessaly
