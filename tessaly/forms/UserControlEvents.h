#pragma once

#include <cstdint>

#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

class PropertyBag;

/// The buttons, or the shift keys, of a mouse event: 1 left or Shift, 2 right or Control, 4 middle or Alt.
using MouseState = std::int16_t;
inline constexpr MouseState kLeftButton = 1;

/// What a control does with the events of its surface. What it raises goes to whoever has raised the event.
/// The order of a control's life: it is made, then InitProperties or ReadProperties, then Resize once, and
/// then the others as they come; WriteProperties at each save; at last it goes.
struct TESSALY_DESKTOP_API UserControlEvents {
  virtual ~UserControlEvents() = default;

  /// The control is new.
  virtual void InitProperties() = 0;

  /// The control was stored.
  virtual void ReadProperties(const PropertyBag& bag) = 0;
  virtual void WriteProperties(PropertyBag& bag) = 0;

  /// The size has changed. It may come while a Resize runs that has assigned the size.
  virtual void Resize() = 0;

  /// The control is shown and has no surface of its own yet.
  virtual void Paint() = 0;

  /// The pointer's place is in the control's own scale; it may lie outside while the mouse is captured.
  virtual void MouseDown(MouseState button, MouseState shift, float x, float y) = 0;
  virtual void MouseMove(MouseState button, MouseState shift, float x, float y) = 0;
  virtual void MouseUp(MouseState button, MouseState shift, float x, float y) = 0;
};

}  // namespace tessaly
