#pragma once

#include <QCursor>

#include "tessaly/forms/Container.h"

namespace tessaly::qt {

/// The cursor of a `MousePointer`: 1 to 15 as forms number them, 99 the icon, any other the usual one.
QCursor cursorOf(std::int16_t pointer, const MouseIcon& icon);

}  // namespace tessaly::qt
