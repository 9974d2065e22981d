#pragma once

namespace tessaly::zplogger {

/// Whether there is a window that clients take for a logger's.
bool isLoggerThere();

}  // namespace tessaly::zplogger
