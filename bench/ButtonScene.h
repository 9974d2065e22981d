#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly::bench {

inline const std::string kComposition = "composition of a button, 48 by 48, three overlays";

/// A square picture with see-through corners.
struct SquarePicture {
  Long side = 0;
  std::vector<std::uint32_t> pixels;
};

/// An overlay, and the corner of the button where it stands, as the control numbers its nine anchors.
struct Overlay {
  SquarePicture picture;
  Long anchor = 0;
  Long left = 0;
  Long top = 0;
};

/// A button as a tool bar has it: a picture of its own size, and three marks in its corners.
struct ButtonScene {
  SquarePicture main;
  std::array<Overlay, 3> overlays;
};

ButtonScene buttonScene();

/// What is seen at last, row by row.
std::vector<std::uint32_t> expectedButton(const ButtonScene& scene);

}  // namespace tessaly::bench
