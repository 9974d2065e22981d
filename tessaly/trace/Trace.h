#pragma once

#include <string_view>

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"
#include "tessaly/trace/ZPLoggerClient.h"

namespace tessaly {

/// The client of this process; null until `StartLogger` finds tracing switched on. The library owns it until
/// it is unloaded.
extern TESSALY_API ZPLoggerClient* logger;

/// Starts tracing where the machine's settings switch it on: at "SOFTWARE\BRAMWELD SYSTEM\Tessaly", "Logger"
/// is any number but 0, and "Path" names the folder for the logger's files. Call it first when a host's
/// top-level object is created, and again for each such object: while the switch is off, each call looks at
/// it anew. Once there is a client, a call does nothing. One thread uses this and `Trace`.
TESSALY_API void StartLogger();

/// Sends a line to the logger, as `ZPLoggerClient::SendTrace` does; mind the other order of the arguments. It
/// returns at once where tracing is off or no logger was there, and does not look for one: only the line that
/// finds the logger gone looks for its successor. Error 6 for a level outside 0 to 255, where a logger is
/// there.
inline void Trace(std::u16string_view text, Long level = 0, Long foreColor = 0, Long backColor = 0xFFFFFF,
                  Boolean flag = True) {
  if (logger == nullptr || !logger->Connected()) return;
  logger->SendTrace(text, foreColor, backColor, level, flag);
}

/// The same for a literal, whose characters are counted only where a logger is there.
inline void Trace(const char16_t* text, Long level = 0, Long foreColor = 0, Long backColor = 0xFFFFFF,
                  Boolean flag = True) {
  if (logger == nullptr || !logger->Connected()) return;
  logger->SendTrace(std::u16string_view(text), foreColor, backColor, level, flag);
}

}  // namespace tessaly
