#include "tessaly/platform/Desktop.h"

#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/InPlaceOf.h"

namespace tessaly::platform {
namespace {

Desktop& inForce() {
  static Desktop bodies{&ownDrawing(), &ownPictures()};
  return bodies;
}

}  // namespace

const Desktop& desktop() { return inForce(); }

Override::Override(Drawing& body) : restore_(inPlaceOf(inForce().drawing, body)) {}
Override::Override(Pictures& body) : restore_(inPlaceOf(inForce().pictures, body)) {}

}  // namespace tessaly::platform
