// A host's own test of a form with a picture button: no display, no waiting. The pointer, the mouse and the
// clock are moved by hand, and what would be seen is there as pixels.

#include "examples/support/Print.h"
#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/forms/headless/Form.h"

using examples::printLine;
using tessaly::Long;

int main() {
  tessaly::headless::Form form;
  auto& button = form.add<tessaly::transparentBitmap>({10, 10, 48, 48});
  button.backcolor(0xC0C0C0);
  button.withBorder(1);
  button.events.OnButtonSelected = [] { printLine(u"  selected"); };
  button.events.OnButtonSelectedTiming = [] { printLine(u"  rested on"); };
  button.events.OnButtonClick = [] { printLine(u"  clicked"); };

  const auto topLeft = [&] { return static_cast<Long>(form.placeOf(button).picture()->pixels()[0] & 0xFFU); };
  printLine(u"Top left is ", topLeft());

  printLine(u"The pointer comes and rests for a second:");
  form.movePointer({20, 20});
  form.advance(1000);
  printLine(u"Top left is ", topLeft(), u", raised");

  printLine(u"The button goes down and up:");
  form.press();
  printLine(u"Top left is ", topLeft(), u", sunken");
  form.release();

  printLine(u"It goes down, leaves the button, and goes up:");
  form.press();
  form.movePointer({200, 200});
  form.release();

  printLine(u"Held down with automaticClick for 1.2 seconds:");
  button.automaticClick(tessaly::True);
  form.movePointer({20, 20});
  form.press();
  form.advance(1200);
  form.release();
}
