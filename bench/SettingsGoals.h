#pragma once

#include <vector>

#include "bench/Summary.h"

namespace tessaly::bench {

/// What the settings are to reach.
std::vector<Goal> settingsGoals();

}  // namespace tessaly::bench
