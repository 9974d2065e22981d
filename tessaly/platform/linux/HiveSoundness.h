#pragma once

#include <string>
#include <vector>

#include "tessaly/platform/linux/Sqlite.h"

namespace tessaly::platform {

/// What is wrong in an open hive, each in a line for people, at most so many; empty where all is as it was
/// written. A key without parents counts, so do values without a key.
std::vector<std::string> faultsOf(sqlite3* database, std::size_t most);

}  // namespace tessaly::platform
