#pragma once

#include <string_view>
#include <vector>

#include "examples/showcase/window/ReportFile.h"

namespace showcase {

/// The folder that the reports stand in, each a file "*.rep".
class Shelf {
 public:
  explicit Shelf(tessaly::String folder) : folder_(std::move(folder)) {}

  /// The names of the files, in their order.
  std::vector<tessaly::String> names() const;

  ReadReport read(std::u16string_view name) const { return readReport(pathTo(name)); }
  bool write(std::u16string_view name, const std::vector<ReportRow>& rows) const {
    return writeReport(pathTo(name), rows);
  }
  bool has(std::u16string_view name) const;

  /// False where it can't be removed.
  bool remove(std::u16string_view name) const;

  /// The name that a file gets for what a user has written: ending in ".rep", without what no system has in
  /// a name. Empty where nothing is left of it.
  static tessaly::String fileName(std::u16string_view written);

 private:
  tessaly::String pathTo(std::u16string_view name) const { return folder_ + u'/' + tessaly::String(name); }

  tessaly::String folder_;
};

}  // namespace showcase
