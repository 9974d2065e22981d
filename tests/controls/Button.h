#pragma once

#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/forms/headless/Form.h"
#include "tests/controls/Figures.h"

namespace tessaly::tests {

/// A control on a form of its own, at the form's top left corner.
class Button {
 public:
  explicit Button(PixelSize size, OLE_COLOR background = kBackground)
      : control(form.add<transparentBitmap>({0, 0, size.width, size.height})), place(form.placeOf(control)) {
    control.backcolor(background);
  }

  /// A green that no figure has.
  static constexpr OLE_COLOR kBackground = 0x60C060;

  headless::Form form;
  transparentBitmap& control;
  headless::Place& place;

  PictureReference shown() const { return place.picture(); }
};

}  // namespace tessaly::tests
