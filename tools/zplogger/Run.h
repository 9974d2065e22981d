#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tools/zplogger/Arguments.h"

namespace tessaly::zplogger {

/// What a run of the tool can end with.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;

/// What the tool sees of the outside.
struct Surroundings {
  std::ostream& out;
  std::ostream& errors;

  /// Runs the logger until it is to end; gives the exit code.
  std::function<int(const Arguments& arguments)> serve;
};

/// Runs the tool with the words behind its name; gives the exit code.
int run(const std::vector<std::string>& words, const Surroundings& around);

}  // namespace tessaly::zplogger
