// A picture button on a form: a picture with a see-through colour, a mark pinned to a corner, and the whole
// of it as one picture. The form here has no display; on a real one the calls are the same.

#include "examples/support/Print.h"
#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/forms/headless/Form.h"

using examples::printLine;
using tessaly::LoadPicture;
using tessaly::Picture;
using tessaly::String;

namespace {

constexpr tessaly::OLE_COLOR kSeeThrough = 0xFF00FF;
constexpr tessaly::Long kBottomRight = 8;

String sizeOf(const Picture& picture) {
  return examples::textOf(picture.size().width) + u" by " + examples::textOf(picture.size().height);
}

}  // namespace

int main() {
  tessaly::headless::Form form;
  auto& button = form.add<tessaly::transparentBitmap>({10, 10, 48, 48});

  // Colours have red in the low byte, so this background is a light blue.
  button.backcolor(0xF0D8B0);
  button.maskColor(kSeeThrough);
  button.Picture(LoadPicture(u"examples/contact-sheet/pictures/open.png"));
  button.disabledPicture(LoadPicture(u"examples/contact-sheet/pictures/open-disabled.png"));
  button.AddBitmap(LoadPicture(u"examples/contact-sheet/pictures/new-16.png"), kBottomRight, kSeeThrough);

  // With stretch the control follows its picture and the border around it.
  button.withBorder(2);
  button.stretch(tessaly::True);
  printLine(u"The control is ", sizeOf(*form.placeOf(button).picture()), u" pixels");

  // What is seen may go elsewhere as one opaque picture, here for a menu that wants it larger. Reading it
  // turns the control's own background red, until it is assigned again.
  printLine(u"As one picture it is ", sizeOf(*button.resultPicture()));
  printLine(u"For the menu it is ", sizeOf(*button.resultPictureWithWidth(96, 96)));
  button.backcolor(button.backcolor());

  // A file that is no picture says so.
  try {
    LoadPicture(u"examples/contact-sheet/pictures/README.md");
  } catch (const tessaly::RuntimeError& error) {
    printLine(u"README.md: error ", error.number(), u", ", tessaly::fromUtf8(error.what()));
  }
}
