#pragma once

#include "tessaly/forms/Picture.h"

namespace showcase {

/// The pictures of the tool bar, by their place in its file.
class ToolPictures {
 public:
  /// Overlays: something is not saved yet, something is on, and a number from 1 to 9.
  enum Overlay : tessaly::Long { Changed = 0, On = 1, Number = 2 };

  /// Raises what `LoadPicture` does.
  ToolPictures();

  tessaly::PictureReference tool(tessaly::Long place) const { return cut(0, place, kToolSide); }
  tessaly::PictureReference disabledTool(tessaly::Long place) const {
    return cut(kToolSide, place, kToolSide);
  }
  tessaly::PictureReference overlay(tessaly::Long place) const {
    return cut(2 * kToolSide, place, kOverlaySide);
  }

 private:
  static constexpr tessaly::Long kToolSide = 32;
  static constexpr tessaly::Long kOverlaySide = 16;

  tessaly::PictureReference cut(tessaly::Long top, tessaly::Long place, tessaly::Long side) const;

  tessaly::PictureReference all_;
};

}  // namespace showcase
