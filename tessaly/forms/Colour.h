#pragma once

#include <cstdint>

#include "tessaly/base/Types.h"
#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/Drawing.h"

namespace tessaly {

struct Container;

/// A colour as properties hold it: red in the low byte, then green, then blue; with its top bit set, the
/// system colour that the low byte numbers.
using OLE_COLOR = Long;

/// The colours that objects begin with.
inline constexpr auto kButtonFace = static_cast<OLE_COLOR>(0x8000000F);
inline constexpr auto kWindowBackground = static_cast<OLE_COLOR>(0x80000005);
inline constexpr auto kWindowText = static_cast<OLE_COLOR>(0x80000008);
inline constexpr auto kButtonText = static_cast<OLE_COLOR>(0x80000012);

/// The colour that is seen: a system colour is the container's, any other its low three bytes.
TESSALY_DESKTOP_API OLE_COLOR shownColour(OLE_COLOR colour, Container& container);

/// A colour's three bytes as a surface's pixel has them, and the way back.
constexpr std::uint32_t pixelOf(OLE_COLOR colour) { return platform::pixelOfColour(colour); }
constexpr OLE_COLOR colourOf(std::uint32_t pixel) {
  return static_cast<OLE_COLOR>(pixelOf(static_cast<OLE_COLOR>(pixel)));
}

}  // namespace tessaly
