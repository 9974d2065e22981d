#pragma once

#include <string_view>

#include "tools/tessaly-reg/Arguments.h"

namespace tessaly::reg {

/// What a command does and takes; of `Command::None`, the tool.
std::string_view helpOf(Command command);

}  // namespace tessaly::reg
