#include "examples/contact-sheet/Button.h"

namespace sheet {
namespace {

constexpr tessaly::Long kMargin = 10;

// In this time a button looks where the pointer is.
constexpr tessaly::Long kPoll = 50;

}  // namespace

Button::Button(tessaly::PixelSize size)
    : control_(form_.add<tessaly::transparentBitmap>({kMargin, kMargin, size.width, size.height})) {
  control_.backcolor(kCard);
}

tessaly::PixelPoint Button::middle() {
  const tessaly::PixelSize size = form_.placeOf(control_).size();
  return {kMargin + size.width / 2, kMargin + size.height / 2};
}

void Button::press() {
  hover();
  form_.press();
}

void Button::dragAway() {
  press();
  form_.movePointer({0, 0});
  form_.advance(kPoll);
}

}  // namespace sheet
