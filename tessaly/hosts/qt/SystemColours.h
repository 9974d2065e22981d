#pragma once

#include <QPalette>

#include "tessaly/forms/Colour.h"

namespace tessaly::qt {

/// The palette's colour for a system colour's number, from 0 to 30; black for any other.
OLE_COLOR systemColour(const QPalette& palette, Long number);

}  // namespace tessaly::qt
