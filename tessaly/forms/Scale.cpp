#include "tessaly/forms/Scale.h"

#include "tessaly/base/Rounding.h"

namespace tessaly {
namespace {

constexpr Long kLongestSide = 32767;

}  // namespace

Long Scale::toSize(double measure) const {
  const double pixels = mode_ == kTwips ? measure / kTwipsPerPixel : measure;
  const bool isSize = pixels >= 0 && pixels <= kLongestSide;
  if (!isSize) throw RuntimeError(RuntimeError::InvalidPropertyValue);
  return roundToLong(pixels);
}

}  // namespace tessaly
