#pragma once

namespace tessaly::tests {

/// A point of the screen.
struct ScreenPoint {
  int x;
  int y;
};

// Where the host has put its window, the button on it and a dialog beside it, and points of those.
inline constexpr ScreenPoint kWindowCorner{100, 80};
inline constexpr ScreenPoint kWindowSize{240, 160};
inline constexpr ScreenPoint kButtonCorner{160, 130};
inline constexpr ScreenPoint kButtonSize{48, 40};
inline constexpr ScreenPoint kDialogCorner{400, 300};
inline constexpr ScreenPoint kDialogSize{100, 60};
inline constexpr ScreenPoint kOnButton{170, 142};
inline constexpr ScreenPoint kBesideButton{120, 100};
inline constexpr ScreenPoint kOnDialog{450, 330};
inline constexpr ScreenPoint kOutsideWindow{520, 420};

}  // namespace tessaly::tests
