#pragma once

#include "tessaly/forms/Colour.h"

namespace tessaly::headless {

/// The colours of a plain Windows, by their numbers from 0 to 30; black for any other.
OLE_COLOR systemColour(Long number);

}  // namespace tessaly::headless
