#pragma once

#include <string>
#include <vector>

#include "tessaly/forms/Picture.h"

namespace tessaly::tests {

/// Pictures side by side in rows, each under a name, as one picture on grey.
class Sheet {
 public:
  explicit Sheet(std::size_t columns) : columns_(columns) {}

  void add(std::string name, const PictureReference& picture) {
    cells_.push_back({std::move(name), picture});
  }

  PictureReference picture() const;

  /// The name of the picture at a place, or that it is between them.
  std::string nameAt(PixelPoint place) const;

 private:
  struct Cell {
    std::string name;
    PictureReference picture;
  };

  /// Every cell has the place that the largest picture needs.
  PixelSize cellSize() const;
  PixelPoint cornerOf(std::size_t cell) const;

  std::size_t columns_;
  std::vector<Cell> cells_;
};

}  // namespace tessaly::tests
