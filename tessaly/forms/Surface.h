#pragma once

#include <cstddef>

#include "tessaly/forms/Geometry.h"
#include "tessaly/forms/Picture.h"
#include "tessaly/platform/Drawing.h"

namespace tessaly {

/// How many pixels a surface of a size has; error 7 for more than 67108864.
std::size_t pixelCount(PixelSize size);

/// A memory surface of its own, made and deleted by the drawing that was in force when it was made. One of no
/// pixels has no device context. For one thread.
class Surface {
 public:
  Surface() = default;
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;
  ~Surface();

  /// Makes the surface anew, its pixels black, where the size is another one; whether it was. Error 7 where
  /// there is no memory for it, and the surface stays as it was.
  bool resize(PixelSize size);

  PixelSize size() const { return size_; }
  platform::DeviceContext context() const { return context_; }
  platform::PixelView pixels() const;

  void fill(std::uint32_t pixel) const;

  /// Fills it and paints a picture on that at the top left corner.
  void paint(const Picture& picture, std::uint32_t background) const;

  /// A picture of all that is there now.
  PictureReference picture() const;

 private:
  platform::Drawing* drawing_ = nullptr;
  platform::DeviceContext context_ = 0;
  PixelSize size_;
};

}  // namespace tessaly
