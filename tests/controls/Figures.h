#pragma once

#include "tessaly/forms/Colour.h"
#include "tessaly/forms/Picture.h"

namespace tessaly::tests {

/// The colour that the figures leave open where nothing else is told.
inline constexpr OLE_COLOR kMagenta = 0xFF00FF;

/// A picture of one colour.
PictureReference plain(PixelSize size, OLE_COLOR colour);

/// A picture whose every pixel tells where it comes from: red rises from left to right, green from top to
/// bottom, and blue is the picture's own. Its outermost pixels are white at the top and left and black at the
/// bottom and right.
PictureReference slope(PixelSize size, std::uint8_t blue);

/// The same with an ellipse of the key's colour in the middle of it.
PictureReference ring(PixelSize size, std::uint8_t blue, OLE_COLOR key = kMagenta);

/// Ten columns: of the key's colour the first, fourth, seventh and last, and between them those with one less
/// and one more of red, of green and of blue. No part of the key is 0 or 255.
PictureReference nearlyKey(OLE_COLOR key);

}  // namespace tessaly::tests
