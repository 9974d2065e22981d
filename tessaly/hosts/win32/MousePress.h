#pragma once

#include <array>
#include <optional>

#include "tessaly/forms/UserControl.h"

namespace tessaly::win32 {

/// The mouse's buttons that are held on a control. Where the mouse is taken away from the window meanwhile,
/// nobody tells of their release: they are released outside, so that the press comes to nothing and nothing
/// goes on that it has begun. `raise` brings the control an event, after which whoever calls must still hold
/// this.
class MousePress {
 public:
  /// Where no control has its pixels.
  static constexpr PixelPoint kOutside{-1, -1};

  bool isHeld() const { return held_ != 0; }

  /// Where the control finds the pointer, in its own pixels; nothing where it is the mouse's.
  std::optional<PixelPoint> pointer() const { return pointer_; }

  template <class Raise>
  void begin(MouseState button, MouseState shift, PixelPoint point, const Raise& raise) {
    held_ = static_cast<MouseState>(held_ | button);
    isLost_ = false;
    ++begun_;
    raise([=](UserControl& control) { control.mouseDown(button, shift, point); });
    --begun_;
    if (isLost_ && begun_ == 0) releaseOutside(raise);
  }

  template <class Raise>
  void end(MouseState button, MouseState shift, PixelPoint point, const Raise& raise) {
    held_ = static_cast<MouseState>(held_ & ~button);
    raise([=](UserControl& control) { control.mouseUp(button, shift, point); });
  }

  /// The window has the mouse no longer. While a press itself is raised, its release waits.
  template <class Raise>
  void lose(const Raise& raise) {
    raise([](UserControl& control) { control.captureLost(); });
    isLost_ = isHeld();
    if (isLost_ && begun_ == 0) releaseOutside(raise);
  }

 private:
  template <class Raise>
  void releaseOutside(const Raise& raise) {
    isLost_ = false;
    pointer_ = kOutside;
    for (const MouseState button : kButtons) {
      if ((held_ & button) != 0) end(button, 0, kOutside, raise);
    }
    pointer_.reset();
  }

  static constexpr std::array<MouseState, 3> kButtons{1, 2, 4};

  MouseState held_ = 0;
  int begun_ = 0;
  bool isLost_ = false;
  std::optional<PixelPoint> pointer_;
};

}  // namespace tessaly::win32
