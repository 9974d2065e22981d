#pragma once

#include <array>
#include <functional>
#include <memory>

#include "tessaly/forms/Line.h"
#include "tessaly/forms/PictureBox.h"
#include "tessaly/forms/Timer.h"
#include "tessaly/forms/UserControl.h"

namespace tessaly {

/// A `transparentBitmap`'s surface and the objects on it, made by the container's toolbox as they are
/// designed.
struct transparentBitmapChildren {
  struct Ticks {
    std::function<void()> Timer1;
    std::function<void()> Timer2;
    std::function<void()> timerAutoClick;
  };

  transparentBitmapChildren(Container& container, UserControlEvents& control, Ticks ticks);

  const std::unique_ptr<UserControl> userControl;

  /// The target of a flattened picture, and the work surfaces of the main picture and of an overlay.
  const std::unique_ptr<PictureBox> result;
  const std::unique_ptr<PictureBox> Picture1;
  const std::unique_ptr<PictureBox> Picture2;

  /// The border: top, bottom, left, right.
  const std::array<std::unique_ptr<Line>, 4> Line1;

  /// Asks whether the pointer has left, measures its rest, and repeats the click.
  const std::unique_ptr<Timer> Timer1;
  const std::unique_ptr<Timer> Timer2;
  const std::unique_ptr<Timer> timerAutoClick;
};

}  // namespace tessaly
