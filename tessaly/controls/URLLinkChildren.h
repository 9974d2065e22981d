#pragma once

#include <memory>

#include "tessaly/forms/Label.h"
#include "tessaly/forms/UserControl.h"

namespace tessaly {

/// A `URLLink`'s surface and the label on it, made by the container's toolbox as they are designed.
struct URLLinkChildren {
  URLLinkChildren(Container& container, UserControlEvents& control);

  const std::unique_ptr<UserControl> userControl;

  /// All that is seen of the link, and what is clicked.
  const std::unique_ptr<Label> lblURL;
};

}  // namespace tessaly
