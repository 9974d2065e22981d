#pragma once

#include <QPoint>
#include <QSize>
#include <Qt>

#include "tessaly/forms/Geometry.h"
#include "tessaly/forms/UserControlEvents.h"

namespace tessaly::qt {

/// Left 1, right 2 and middle 4, and Shift 1, Control 2 and Alt 4; other ones count nothing.
MouseState mouseState(Qt::MouseButtons buttons);
MouseState shiftState(Qt::KeyboardModifiers modifiers);

inline PixelPoint toPoint(QPoint point) { return {point.x(), point.y()}; }
inline QPoint toQPoint(PixelPoint point) { return {point.x, point.y}; }
inline QSize toQSize(PixelSize size) { return {size.width, size.height}; }

}  // namespace tessaly::qt
