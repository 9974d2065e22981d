#pragma once

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// The code page that 8-bit text has on a Windows of a language, by the language's number.
TESSALY_API Long ansiCodePage(Long lcid);

}  // namespace tessaly::platform
