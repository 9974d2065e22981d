#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/MessageBoxes.h"
#include "tests/support/World.h"

namespace tessaly::tests {

/// A box as it stands before the user.
struct ShownBox {
  platform::WindowHandle owner = 0;
  String text;
  String caption;

  /// In the order of their set.
  std::vector<Long> buttons;
  Long defaultButton = 0;

  /// By its bits in the type, 0 for none.
  Long icon = 0;
};

/// Looks at the boxes of this thread and answers them.
class BoxUser {
 public:
  /// The bodies that show boxes in this program.
  static std::vector<Body> bodies();

  /// That of the platform or of the toolkit; none where no boxes can be shown.
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

/// The body of the area MessageBoxes that a contract runs on, in force as long as the world lives.
class BoxWorld {
 public:
  explicit BoxWorld(Body body);

  /// Null where no boxes are shown, as it may be on the platform's own body.
  BoxUser* user() { return user_.get(); }

 private:
  platform::fake::MessageBoxes fake_;
  std::optional<platform::Override> inForce_;
  std::unique_ptr<BoxUser> user_;
};

}  // namespace tessaly::tests
