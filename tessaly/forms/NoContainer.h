#pragma once

#include "tessaly/forms/Container.h"

namespace tessaly {

/// What stands behind a control whose container has gone: no size, no pointer, and nobody who is told.
Container& noContainer();

}  // namespace tessaly
