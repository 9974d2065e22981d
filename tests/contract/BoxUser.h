#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "tessaly/platform/MessageBoxes.h"

namespace tessaly::tests {

/// A box as it stands before the user.
struct ShownBox {
  platform::WindowHandle owner = 0;
  String text;
  String caption;
  std::vector<Long> buttons;
  Long defaultButton = 0;
};

/// Looks at the boxes of this thread and answers them.
class BoxUser {
 public:
  /// None where no boxes can be shown.
  static std::unique_ptr<BoxUser> make();

  BoxUser() = default;
  BoxUser(const BoxUser&) = delete;
  BoxUser& operator=(const BoxUser&) = delete;
  virtual ~BoxUser() = default;

  /// From now on this button answers the boxes, and with 0 each one's default button.
  virtual void press(Long button) = 0;

  virtual const std::vector<ShownBox>& seen() const = 0;

  /// Makes a window active, and gives it; it goes with the user.
  virtual platform::WindowHandle activate() = 0;
};

}  // namespace tessaly::tests
