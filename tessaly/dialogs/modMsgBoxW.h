#pragma once

#include <string_view>

#include "tessaly/base/Types.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

/// Shows a message box before the active window of this thread, and waits for the user. Texts come to the
/// screen whole, in any script, up to a NUL. The flags are those of the platform's `MessageBoxW`, for
/// buttons, icon and default button, and go on as they are. An empty title is "Tessaly". The result is the
/// number of the button, 1 OK, 2 Cancel, 3 Abort, 4 Retry, 5 Ignore, 6 Yes, 7 No, and 0 where no box could be
/// shown.
TESSALY_DESKTOP_API Long MsgBoxW(std::u16string_view prompt, Long flags, std::u16string_view title);

}  // namespace tessaly
