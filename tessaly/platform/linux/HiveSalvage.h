#pragma once

#include <string_view>

#include "tessaly/platform/linux/HiveRows.h"

namespace tessaly::platform {

/// The rows of a hive that are as they were written.
struct SalvagedRows {
  std::vector<hive::KeyRow> keys;
  std::vector<hive::ValueRow> values;
};

/// All that is found in a hive's bytes, each key and value once.
SalvagedRows salvage(std::string_view file);

/// Puts keys whose parents are lost under one key of the root, and values whose keys are lost into keys of
/// their own there.
void gatherLost(SalvagedRows& rows);

}  // namespace tessaly::platform
