#pragma once

#include <functional>

#include "tessaly/base/Types.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

class UserControl;

/// A control's timer: while it is enabled and its interval is not 0, it ticks each time that the interval has
/// passed since the last tick's end. It begins disabled, with 0. A tick may change the timer, or destroy it.
/// One thread uses it.
class TESSALY_DESKTOP_API Timer {
 public:
  /// The control must outlive it. What `onTick` raises goes to the container's `onError`.
  Timer(UserControl& parent, std::function<void()> onTick);
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  virtual ~Timer();

  /// True begins an interval, where it was False before.
  virtual Boolean Enabled() const;
  virtual void Enabled(Boolean enabled);

  /// In milliseconds, 0 to 65535; error 380 for any other. Begins an interval of the new length.
  virtual Long Interval() const;
  virtual void Interval(Long milliseconds);

  /// For the container: the interval has passed. Nothing happens where the timer does not run any more.
  void tick() noexcept;

 private:
  bool isRunning() const;
  void begin(Boolean enabled, Long interval);

  UserControl* parent_;
  std::function<void()> onTick_;
  Long interval_ = 0;
  Boolean enabled_;
};

}  // namespace tessaly
