// A hyperlink on a form, and a host that looks at each click. The shell is a stand-in that opens nothing and
// tells what it would.

#include "examples/support/Print.h"
#include "tessaly/controls/URLLink.h"
#include "tessaly/forms/headless/Form.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/MessageBoxes.h"
#include "tessaly/platform/fake/Shell.h"

using examples::printLine;
using tessaly::Boolean;
using tessaly::Long;
using tessaly::String;
namespace platform = tessaly::platform;

int main() {
  platform::fake::Shell shell;
  platform::fake::MessageBoxes boxes;
  const platform::Override shellInForce(shell);
  const platform::Override boxesInForce(boxes);
  shell.onOpen([](const auto& call) { printLine(u"  opened: ", tessaly::fromUtf8(call.file.value_or(""))); });

  tessaly::headless::Form form;
  auto& link = form.add<tessaly::URLLink>({10, 10, 120, 16});
  link.alignment(0);
  link.text(u"Help on the web");
  link.URL(u"https://www.reports.example/");
  link.ShowToolTip(tessaly::True);
  printLine(u"Shown: ", link.text(), u", and on rest: ", form.placeOf(link).toolTip());

  printLine(u"A click:");
  form.movePointer({20, 15});
  form.press();
  form.release();

  printLine(u"The host sends this one elsewhere:");
  link.events.GoToURL = [](String& URL, Boolean&) { URL += u"new"; };
  form.press();
  form.release();

  printLine(u"And does not want the next:");
  link.events.GoToURL = [](String&, Boolean& Cancel) { Cancel = tessaly::True; };
  form.press();
  form.release();

  printLine(u"On a platform that can't open anything:");
  link.events.GoToURL = nullptr;
  shell.onOpen(nullptr);
  shell.raise(tessaly::RuntimeError::EntryPointNotFound);
  form.press();
  form.release();
  for (const auto& box : boxes.boxes()) printLine(u"  ", box.text);
  printLine(u"The screen's pointer is ", static_cast<Long>(form.screen().MousePointer()));
}
