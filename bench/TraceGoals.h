#pragma once

#include <vector>

#include "bench/Summary.h"

namespace tessaly::bench {

/// What tracing is to reach.
std::vector<Goal> traceGoals();

}  // namespace tessaly::bench
