#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tessaly/forms/Picture.h"

namespace sheet {

/// A picture in the making, on which others are put.
class Canvas {
 public:
  explicit Canvas(const tessaly::Picture& background);

  /// What leaves the canvas is cut off.
  void put(tessaly::PixelPoint corner, const tessaly::Picture& picture);

  tessaly::Picture picture() const { return {size_, pixels_}; }

 private:
  tessaly::PixelSize size_;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace sheet
