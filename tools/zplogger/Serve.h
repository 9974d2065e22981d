#pragma once

#include "tools/zplogger/Arguments.h"

namespace tessaly::zplogger {

/// Runs the logger until the terminal's keys, a signal or the end of its output end it; gives the exit code.
/// If a write hangs then, because nobody reads, it ends the program itself.
int serve(const Arguments& arguments);

}  // namespace tessaly::zplogger
