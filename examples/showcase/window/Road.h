#pragma once

#include <functional>
#include <string_view>

#include "examples/showcase/window/Reports.h"
#include "examples/showcase/window/Unseen.h"

namespace showcase {

/// The pictures of a road.
struct RoadPictures {
  tessaly::PictureReference window;
  tessaly::PictureReference settings;

  /// None where help can't be drawn.
  tessaly::PictureReference help;
};

/// What a step of the road was, and what came of it.
using Say = std::function<void(std::u16string_view step, const tessaly::String& outcome)>;

/// Does what a user would do, from the tool bar to the last question; each step is said. His preferences are
/// as before in the end, and no file is changed.
RoadPictures walk(Window& window, Reports& reports, tessaly::CResources& resources, const Unseen& unseen,
                  const Say& say);

}  // namespace showcase
