#pragma once

#include <cstdint>
#include <functional>

namespace tessaly {

/// What a host hears of a `transparentBitmap`: it sets the fields that it wants to be called. All calls come
/// on the form's thread, one at a time, and the control goes on when the call has returned. The host may
/// change properties and these fields in them, and let go of the control, which still ends what it is at: it
/// calls what is set then. What a host raises goes on to whoever has brought the event, but for errors and
/// want of memory in OnButtonSelectedTiming, which are passed over.
struct transparentBitmapEvents {
  /// `Button` is 1 left, 2 right, 4 middle, `Shift` 1 Shift, 2 Control, 4 Alt; the place is in pixels of the
  /// control and may lie outside of it while a button is held. A host that changes the first two changes what
  /// the control does next.
  using Mouse = std::function<void(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)>;

  /// A click, or a repetition of it while the button is held.
  std::function<void()> OnButtonClick;

  /// The pointer came onto the control.
  std::function<void()> OnButtonSelected;

  /// The pointer has rested on the control for a second; once for each time that it came.
  std::function<void()> OnButtonSelectedTiming;

  /// Every move, press and release on the surface, also while the control is disabled.
  Mouse MouseMove;
  Mouse MouseDown;
  Mouse MouseUp;
};

}  // namespace tessaly
