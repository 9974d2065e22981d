#pragma once

#include <string>
#include <vector>

#include "tools/tessaly-reg/Context.h"

namespace tessaly::reg {

/// Runs the tool with the words behind its name; gives the exit code.
int run(const std::vector<std::string>& words, const Surroundings& around);

}  // namespace tessaly::reg
