#pragma once

#include "tessaly/platform/Drawing.h"
#include "tessaly/platform/Pictures.h"

/// The platform's own bodies for forms and controls, one factory each.
namespace tessaly::platform {

Drawing& ownDrawing();
Pictures& ownPictures();

}  // namespace tessaly::platform
