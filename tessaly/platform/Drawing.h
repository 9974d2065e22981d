#pragma once

#include <cstdint>

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// A memory surface that the calls draw on; 0 is none.
using DeviceContext = std::intptr_t;

/// What `SelectObject` puts into a surface; 0 is none.
using DrawingObject = std::intptr_t;

/// What lies from left to before right, and from top to before bottom.
struct PixelArea {
  Long left = 0;
  Long top = 0;
  Long right = 0;
  Long bottom = 0;
};

/// The most pixels of a surface.
inline constexpr std::int64_t kMostSurfacePixels = std::int64_t{1} << 26;

inline bool isSurfaceSize(Long width, Long height) {
  return width > 0 && height > 0 && std::int64_t{width} * height <= kMostSurfacePixels;
}

/// A surface's pixels from the top left on, row by row without gaps: blue in the low byte, then green, then
/// red; the top byte is 0, and whoever writes a pixel keeps it so. Good until the next call.
struct PixelView {
  std::uint32_t* pixels = nullptr;
  Long width = 0;
  Long height = 0;
};

/// A colour, with red in the low byte, as such a pixel has it; its top byte is lost.
constexpr std::uint32_t pixelOfColour(Long colour) {
  const auto bits = static_cast<std::uint32_t>(colour);
  return (bits & 0xFFU) << 16U | (bits & 0xFF00U) | (bits >> 16U & 0xFFU);
}

/// Drawing on memory surfaces, by the platform's own calls. Colours have red in the low byte, then green,
/// then blue; their top byte is not looked at. What lies outside a surface is cut off. A surface or an object
/// that is none makes a call fail, which leaves everything as it was. No call throws but for want of memory.
/// A surface is one thread's at a time.
struct Drawing {
  virtual ~Drawing() = default;

  /// A black surface; 0 where a side is below 1, it would have too many pixels, or there is no memory.
  /// Whoever makes it deletes it.
  virtual DeviceContext createSurface(Long width, Long height) = 0;
  virtual void deleteSurface(DeviceContext surface) = 0;

  /// The surface's pixels, with all in them that was drawn so far; none for no surface.
  virtual PixelView pixels(DeviceContext surface) = 0;

  /// Copies an area of the source to one of the target, but for the pixels of the key's very colour. Where
  /// the sizes differ each pixel of the target takes the one at floor(x * source / target). Source and target
  /// may be one surface and overlap, as if the source were taken before anything changes. False, and nothing
  /// is copied, where a size is below 1 or the area does not lie within the source.
  virtual bool TransparentBlt(DeviceContext target, Long x, Long y, Long width, Long height,
                              DeviceContext source, Long sourceX, Long sourceY, Long sourceWidth,
                              Long sourceHeight, Long key) = 0;

  /// A brush of one colour; whoever makes it deletes it.
  virtual DrawingObject CreateSolidBrush(Long colour) = 0;

  /// Puts a brush into a surface and gives the one that was there: at first a white one that the surface came
  /// with, which nobody deletes. 0 where it fails.
  virtual DrawingObject SelectObject(DeviceContext surface, DrawingObject object) = 0;

  /// Fills an area with a brush; 0 where it fails. Sides in the wrong order fill as many pixels as in the
  /// right one, from behind the smaller side to the larger one: right 2 and left 5 are the columns 3 to 5.
  virtual Long FillRect(DeviceContext surface, const PixelArea& area, DrawingObject brush) = 0;

  /// Deletes a brush; false where it is none, or still in a surface. The white one of surfaces stays, with
  /// true.
  virtual bool DeleteObject(DrawingObject object) = 0;
};

}  // namespace tessaly::platform
