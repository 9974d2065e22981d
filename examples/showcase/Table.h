#pragma once

#include <vector>

#include "examples/showcase/Screen.h"

namespace showcase {

/// A table whose columns are as wide as their widest cell.
class Table {
 public:
  explicit Table(const std::vector<tessaly::String>& headings);

  /// A row with a cell for each heading.
  void addRow(std::vector<StyledText> cells);

  void print(const Screen& screen) const;

 private:
  using Row = std::vector<StyledText>;

  StyledText lineOf(const Row& row) const;

  Row headings_;
  std::vector<Row> rows_;
  std::vector<int> widths_;
};

}  // namespace showcase
