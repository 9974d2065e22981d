#pragma once

#include <filesystem>

#include "bench/SettingsPlaces.h"

namespace tessaly::bench {

/// Lets the library find its hives in the temporary folder. To be called before its first use.
void useOwnHives();

/// A store's hive, filled where it is missing.
std::filesystem::path hiveOf(const Store& store);

}  // namespace tessaly::bench
