#pragma once

#include <cstdint>

#include "tessaly/forms/Geometry.h"
#include "tessaly/platform/Drawing.h"

namespace tessaly {

/// Draws a straight line from end to end, both included, and `width` pixels wide across the direction in
/// which it is longer, half of it on either side. Where its middle lies on the pixels and its side does not,
/// it is moved inside; all else outside is cut off.
void drawLine(platform::PixelView pixels, PixelPoint from, PixelPoint to, Long width, std::uint32_t pixel);

}  // namespace tessaly
