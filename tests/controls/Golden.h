#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/controls/Sheet.h"

namespace tessaly::tests {

/// The pictures that were looked at and found right.
inline const std::string kGoldenFolder = "tests/golden";

/// Whether a sheet is the golden picture of its name, pixel by pixel. Where it is not, the sheet is put into
/// the build's folder golden-got, from which scripts/approve takes it.
testing::AssertionResult isGolden(const std::string& name, const Sheet& sheet);

}  // namespace tessaly::tests
