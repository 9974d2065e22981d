#pragma once

#include "tessaly/platform/Core.h"
#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/Drawing.h"
#include "tessaly/platform/HtmlHelp.h"
#include "tessaly/platform/MessageBoxes.h"
#include "tessaly/platform/Pictures.h"
#include "tessaly/platform/Shell.h"

namespace tessaly::platform {

/// The platform as forms, controls and dialogs see it: one body for each area. The bodies live as long as the
/// program.
struct Desktop {
  Drawing* drawing;
  HtmlHelp* htmlHelp;
  MessageBoxes* messageBoxes;
  Pictures* pictures;
  Shell* shell;
};

/// The bodies in force: the platform's own, or those that an `Override` has put in their place.
TESSALY_DESKTOP_API const Desktop& desktop();

}  // namespace tessaly::platform
