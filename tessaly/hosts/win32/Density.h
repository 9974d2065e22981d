#pragma once

#include <windows.h>

#include "tessaly/forms/Geometry.h"

namespace tessaly::win32 {

/// How dense a window's screen is: so many pixels of the window make one of its control's. It is one on a
/// screen of 96 dots to the inch, and on every screen in a program that Windows scales as a whole. All that
/// goes between a window and its control passes through here.
class Density {
 public:
  static constexpr UINT kUsual = 96;

  Density() = default;

  /// Below the usual one there is none.
  explicit Density(UINT dotsPerInch) : dots_(dotsPerInch > kUsual ? dotsPerInch : kUsual) {}

  /// That of a window's screen, at this moment.
  static Density of(HWND window);

  /// Whether each pixel of the control becomes a square.
  bool isWhole() const { return dots_ % kUsual == 0; }
  double ratio() const { return static_cast<double>(dots_) / kUsual; }

  /// The control's pixel in which one of the window lies, and how many of the control's there is room for.
  PixelPoint toControl(PixelPoint point) const { return {down(point.x), down(point.y)}; }
  PixelSize toControl(PixelSize size) const { return {down(size.width), down(size.height)}; }

  /// A pixel of the window within one of the control, and the room that the control's pixels take. Back again
  /// they are what they were.
  PixelPoint toWindow(PixelPoint point) const { return {up(point.x), up(point.y)}; }
  PixelSize toWindow(PixelSize size) const { return {up(size.width), up(size.height)}; }

  bool operator==(const Density&) const = default;

 private:
  Long down(Long measure) const;
  Long up(Long measure) const;

  UINT dots_ = kUsual;
};

/// Who tells the dots per inch of a window's screen: for none it is Windows itself. For tests.
using DotsPerInch = UINT (*)(HWND window);
void tellDensity(DotsPerInch teller);

}  // namespace tessaly::win32
