#pragma once

#include "tessaly/forms/UserControlEvents.h"

class QWidget;

namespace tessaly::qt {

/// The buttons of the mouse that went down on a widget and have not come up.
class HeldMouse {
 public:
  void pressed(MouseState button);
  void released(MouseState button) { buttons_ = static_cast<MouseState>(buttons_ & ~button); }

  /// None is held any more.
  MouseState takeAll();

  /// Whether the release went elsewhere, or will: a menu has the mouse now, or Qt knows of no button that is
  /// down. An event that a program has made up itself is none that Qt knows of, and tells nothing.
  bool isTaken(const QWidget& widget) const;

 private:
  MouseState buttons_ = 0;
  bool isKnownToQt_ = false;
};

}  // namespace tessaly::qt
