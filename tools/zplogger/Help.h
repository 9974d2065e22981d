#pragma once

#include <string_view>

namespace tessaly::zplogger {

/// What the tool does and takes.
std::string_view helpText();

}  // namespace tessaly::zplogger
