// What a designer has set on a control is kept as text, which a host can put into a file, and makes the same
// control again at the next start. Only what differs from the defaults is kept.

#include "examples/support/Print.h"
#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/forms/headless/Form.h"

using examples::printLine;
using tessaly::PropertyBag;
using tessaly::String;
using tessaly::transparentBitmap;

namespace {

String designed() {
  tessaly::headless::Form form;
  form.setUserMode(false);
  auto& button = form.add<transparentBitmap>({0, 0, 64, 64});
  button.Picture(nullptr);
  button.disabledPicture(nullptr);
  button.backcolor(0xF0D8B0);
  button.withBorder(2);
  button.automaticClick(tessaly::True);
  for (const String& name : form.placeOf(button).changedProperties()) printLine(u"changed: ", name);
  return form.placeOf(button).save().text();
}

void run(const String& kept) {
  tessaly::headless::Form form;
  const auto& button = form.add<transparentBitmap>({0, 0, 64, 64}, PropertyBag::fromText(kept));
  printLine(u"border ", button.withBorder(), u", repeats each ", button.automaticClickTiming(), u" ms");
}

}  // namespace

int main() {
  const String kept = designed();
  printLine(kept);
  run(kept);

  // A text that is none, and a value of the wrong kind, are told by their numbers.
  for (const String& text : {String(u"no line of a bag"), String(u"WithBorder = String \"wide\"\n")}) {
    try {
      run(text);
    } catch (const tessaly::RuntimeError& error) {
      printLine(u"error ", error.number(), u", ", tessaly::fromUtf8(error.what()));
    }
  }
}
