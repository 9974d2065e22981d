#pragma once

#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

/// What the examples need of the terminal they run in; one body a platform, chosen by the build.
namespace examples {

/// Writes text to standard output: as the terminal shows it, or as UTF-8 into a file or pipe.
void write(std::u16string_view text);

/// Whether all that was written has arrived; a full disk is told here.
bool finishWriting();

/// Whether standard output is a terminal that understands colours.
bool hasColours();

/// The program's arguments without its own name, as the library takes paths.
std::vector<tessaly::String> arguments(int argc, char** argv);

}  // namespace examples
