#include "tessaly/platform/Desktop.h"

#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/InPlaceOf.h"

namespace tessaly::platform {
namespace {

Desktop& inForce() {
  static Desktop bodies{&ownDrawing(), &ownHtmlHelp(), &ownMessageBoxes(), &ownPictures(), &ownShell()};
  return bodies;
}

}  // namespace

const Desktop& desktop() { return inForce(); }

Override::Override(Drawing& body) : restore_(inPlaceOf(inForce().drawing, body)) {}
Override::Override(HtmlHelp& body) : restore_(inPlaceOf(inForce().htmlHelp, body)) {}
Override::Override(MessageBoxes& body) : restore_(inPlaceOf(inForce().messageBoxes, body)) {}
Override::Override(Pictures& body) : restore_(inPlaceOf(inForce().pictures, body)) {}
Override::Override(Shell& body) : restore_(inPlaceOf(inForce().shell, body)) {}

}  // namespace tessaly::platform
