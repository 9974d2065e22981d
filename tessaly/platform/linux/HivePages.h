#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace tessaly::platform {

/// A column of a row as a page has it.
struct PageColumn {
  std::int64_t number = 0;
  std::string_view bytes;
  bool isText = false;
};

/// Finds the rows in the pages of a hive, whether the tree that holds the pages together is whole or not, by
/// SQLite's file format: https://www.sqlite.org/fileformat2.html. What is no row may come too; the caller
/// knows its rows by their sums. The columns are good during the call.
void forEachRow(std::string_view file, const std::function<void(const std::vector<PageColumn>&)>& found);

}  // namespace tessaly::platform
