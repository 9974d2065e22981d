#pragma once

#include "examples/showcase/check/Findings.h"

namespace showcase {

void checkFileName(std::vector<Finding>& findings, std::u16string_view path);
void checkFonts(std::vector<Finding>& findings, const LoadedFile& file);

/// Numbers that are none, ID elements that lead nowhere or to the same text, and empty texts.
void checkElements(std::vector<Finding>& findings, const FileOutline& outline);

}  // namespace showcase
