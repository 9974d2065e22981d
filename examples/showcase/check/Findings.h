#pragma once

#include <string_view>
#include <vector>

#include "examples/showcase/check/FileOutline.h"
#include "examples/showcase/check/LoadedFile.h"

namespace showcase {

/// Something in a language file for its translator to look at.
struct Finding {
  tessaly::String where;
  tessaly::String what;
};

/// Whether a catalogue takes anything from the file.
bool isUsed(const LoadedFile& file);

/// Why nothing is taken from a file that is not used.
std::vector<Finding> reasonsAgainst(const LoadedFile& file, const FileOutline& outline);

/// What is wrong in a file that is used: in its elements, then in its texts by number.
std::vector<Finding> findingsIn(const LoadedFile& file, const FileOutline& outline, std::u16string_view path);

}  // namespace showcase
