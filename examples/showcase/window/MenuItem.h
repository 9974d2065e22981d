#pragma once

#include <vector>

#include "tessaly/base/Types.h"

namespace showcase {

/// One item of a menu: a command, a menu with items of its own, or a line between others, which has no text.
/// A letter behind & in the text is the item's key in its menu; behind a tab stands the key that gives the
/// command anywhere.
struct MenuItem {
  tessaly::String text = {};

  /// What the window's `onCommand` is told.
  tessaly::Long id = 0;
  bool isEnabled = true;
  bool isChecked = false;
  std::vector<MenuItem> items = {};

  bool operator==(const MenuItem& other) const = default;
};

}  // namespace showcase
