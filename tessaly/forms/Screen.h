#pragma once

#include <cstdint>

#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

/// The screen of a form: its units and the pointer that the whole application shows.
class TESSALY_DESKTOP_API Screen {
 public:
  virtual ~Screen() = default;

  /// A pixel is 15 twips wide and high on every screen; a container scales what is seen.
  virtual double TwipsPerPixelX() const { return 15; }
  virtual double TwipsPerPixelY() const { return 15; }

  /// The application's pointer: 0 leaves it to each control, 11 is the hourglass.
  virtual std::int16_t MousePointer() const { return mousePointer_; }
  virtual void MousePointer(std::int16_t pointer) { mousePointer_ = pointer; }

 private:
  std::int16_t mousePointer_ = 0;
};

}  // namespace tessaly
