#pragma once

#include <vector>

#include "bench/Summary.h"

namespace tessaly::bench {

/// What drawing is to reach.
std::vector<Goal> drawingGoals();

}  // namespace tessaly::bench
