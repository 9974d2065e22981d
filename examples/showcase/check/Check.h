#pragma once

#include <string_view>

#include "examples/showcase/Screen.h"

namespace showcase {

enum ExitCode { InOrder = 0, WithFindings = 1, NotUsed = 2 };

/// Tells what a catalogue takes from a language file, and what its translator should look at.
ExitCode check(const Screen& screen, std::u16string_view path);

}  // namespace showcase
