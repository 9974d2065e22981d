#pragma once

#include "examples/showcase/check/Findings.h"

namespace showcase {

void checkFileName(std::vector<Finding>& findings, std::u16string_view path);
void checkFonts(std::vector<Finding>& findings, const LoadedFile& file);

/// The number that reading ends at, if there is one.
void checkEnd(std::vector<Finding>& findings, const FileOutline& outline);

/// ID elements that lead nowhere or to the same text, empty texts, and the number that reading ends at.
void checkElements(std::vector<Finding>& findings, const FileOutline& outline);

}  // namespace showcase
