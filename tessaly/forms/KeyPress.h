#pragma once

#include <optional>

#include "tessaly/forms/UserControl.h"

namespace tessaly {

/// For a container: a key that is held in the place of the mouse's left button. As long as it is, the control
/// finds the pointer in its middle. `raise` brings the control an event, after which whoever calls must still
/// hold this.
class KeyPress {
 public:
  bool isHeld() const { return isHeld_; }

  /// Where the control finds the pointer, in its own pixels; nothing where it is the mouse's.
  std::optional<PixelPoint> pointer() const { return pointer_; }

  /// An end that comes while the press itself is raised waits for it.
  template <class Raise>
  void begin(PixelPoint point, const Raise& raise) {
    if (isHeld_) return;
    isHeld_ = true;
    isBeginning_ = true;
    pointer_ = point;
    laterEnd_.reset();
    raise([point](UserControl& control) { control.mouseMove(0, 0, point); });
    raise([point](UserControl& control) { control.mouseDown(kLeftButton, 0, point); });
    isBeginning_ = false;
    if (laterEnd_) end(*laterEnd_, raise);
  }

  /// The pointer is where the mouse has it, whatever the key made of it.
  void forgetPointer() { pointer_.reset(); }

  /// Lets go of the key with the pointer at a point, which for a press that is to come to nothing is outside.
  template <class Raise>
  void end(PixelPoint point, const Raise& raise) {
    if (!isHeld_) return;
    if (isBeginning_) {
      laterEnd_ = point;
      return;
    }
    isHeld_ = false;
    pointer_ = point;
    raise([point](UserControl& control) { control.mouseUp(kLeftButton, 0, point); });
    if (!isHeld_) pointer_.reset();
  }

 private:
  bool isHeld_ = false;
  bool isBeginning_ = false;
  std::optional<PixelPoint> pointer_;
  std::optional<PixelPoint> laterEnd_;
};

}  // namespace tessaly
