// Help at a key press and message boxes, with stand-ins in the place of the viewer and of the user, as a
// host's own test has them: nothing is shown, and what would be is told.

#include "examples/support/Print.h"
#include "tessaly/dialogs/CHelp.h"
#include "tessaly/dialogs/modMsgBoxW.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Files.h"
#include "tessaly/platform/fake/HtmlHelp.h"
#include "tessaly/platform/fake/MessageBoxes.h"
#include "tessaly/platform/fake/Registry.h"
#include "tessaly/settings/CRegistry.h"

using examples::printLine;
using tessaly::False;
using tessaly::Long;
using tessaly::True;
namespace platform = tessaly::platform;

namespace {

constexpr Long kQuestion = 0x124;  // Yes and No, a question mark, and No for who presses Return
constexpr Long kYes = 6;

// What a dialog of the host does with a key: F1 opens its page.
void onKey(std::int16_t keyCode, std::int16_t shift) {
  tessaly::CHelp help;
  if (help.HelpKey(keyCode, shift)) help.ShowTopic(0, u"Settings", u"colours", False, True);
}

// What another does before it deletes something.
void onDelete(std::u16string_view report) {
  const tessaly::String prompt = u"Delete " + tessaly::String(report) + u"?";
  const Long button = tessaly::MsgBoxW(prompt, kQuestion, u"");
  printLine(button == kYes ? u"  it is deleted" : u"  it stays");
}

void installAt(std::u16string_view folder) {
  tessaly::CRegistry settings;
  settings.root(0);
  settings.rootPath(u"SOFTWARE\\BRAMWELD SYSTEM\\Tessaly");
  settings.SetString(u"Path", folder);
}

}  // namespace

int main() {
  platform::fake::Files files(u'/');
  platform::fake::Registry registry;
  platform::fake::HtmlHelp viewer;
  platform::fake::MessageBoxes boxes;
  const platform::Override filesInForce(files);
  const platform::Override registryInForce(registry);
  const platform::Override viewerInForce(viewer);
  const platform::Override boxesInForce(boxes);
  installAt(u"/opt/reports");

  printLine(u"F1, and Shift with F1:");
  onKey(112, 0);
  onKey(112, 1);
  for (const auto& shown : viewer.shown()) printLine(u"  ", tessaly::fromUtf8(shown.file));
  printLine(u"  put on top: ", static_cast<Long>(viewer.placed().size()));

  printLine(u"A user who says yes, and one who presses Return:");
  boxes.press(kYes);
  onDelete(u"Продажи.rep");
  boxes.answer({});
  onDelete(u"売上.rep");
  for (const auto& box : boxes.boxes()) printLine(u"  ", box.caption, u": ", box.text);
}
