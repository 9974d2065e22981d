#pragma once

#include <cstdint>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/base/Types.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

/// The unit of an object's inner measures: 1 twips, 3 pixels.
class TESSALY_DESKTOP_API Scale {
 public:
  static constexpr std::int16_t kTwips = 1;
  static constexpr std::int16_t kPixels = 3;
  static constexpr Long kTwipsPerPixel = 15;

  /// Error 380 for any other mode.
  constexpr explicit Scale(std::int16_t mode) : mode_(mode) {
    if (mode != kTwips && mode != kPixels) throw RuntimeError(RuntimeError::InvalidPropertyValue);
  }

  std::int16_t mode() const { return mode_; }
  double fromPixels(Long pixels) const { return mode_ == kTwips ? pixels * kTwipsPerPixel : pixels; }

  /// A size in whole pixels, the nearest, ties to even. Error 380 below 0, above 32767 and for what is no
  /// number.
  Long toSize(double measure) const;

 private:
  std::int16_t mode_;
};

}  // namespace tessaly
