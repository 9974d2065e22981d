#pragma once

#include "examples/showcase/check/Findings.h"

namespace showcase {

/// Holds each text against the English one, and tells the numbers that have none.
void checkTexts(std::vector<Finding>& findings, const LoadedFile& file);

}  // namespace showcase
