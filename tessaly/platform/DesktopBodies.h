#pragma once

#include "tessaly/platform/Drawing.h"
#include "tessaly/platform/HtmlHelp.h"
#include "tessaly/platform/MessageBoxes.h"
#include "tessaly/platform/Pictures.h"
#include "tessaly/platform/Shell.h"

/// The platform's own bodies for forms, controls and dialogs, one factory each.
namespace tessaly::platform {

Drawing& ownDrawing();
HtmlHelp& ownHtmlHelp();
MessageBoxes& ownMessageBoxes();
Pictures& ownPictures();
Shell& ownShell();

}  // namespace tessaly::platform
