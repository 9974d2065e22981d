#pragma once

#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/forms/headless/Form.h"

namespace sheet {

/// The colour of the cards on which the buttons stand.
inline constexpr tessaly::Long kCard = 0xDED8D4;

/// A button on a form of its own, without a display.
class Button {
 public:
  explicit Button(tessaly::PixelSize size);

  tessaly::transparentBitmap& operator*() { return control_; }
  tessaly::transparentBitmap* operator->() { return &control_; }

  /// What a user does with the mouse.
  void hover() { form_.movePointer(middle()); }
  void press();
  void dragAway();

  /// What is seen of it now.
  tessaly::PictureReference shown() { return form_.placeOf(control_).picture(); }

 private:
  tessaly::PixelPoint middle();

  tessaly::headless::Form form_;
  tessaly::transparentBitmap& control_;
};

}  // namespace sheet
