#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/MessageBoxes.h"

namespace tessaly::platform::fake {

/// Message boxes that nobody sees and a test answers. Not for several threads at once.
class TESSALY_DESKTOP_API MessageBoxes final : public platform::MessageBoxes {
 public:
  struct Box {
    WindowHandle owner = 0;
    String text;
    String caption;
    Long type = 0;

    bool operator==(const Box&) const = default;
  };

  /// From now on boxes are answered with this button, and with 0 they can't be shown. At first each is
  /// answered with its default button.
  void press(Long button);

  /// From now on this answers the boxes, and runs while the box is there; an empty one answers with default
  /// buttons again.
  void answer(std::function<Long(const Box&)> user) { user_ = std::move(user); }

  /// From now on this window is the active one; 0 at first.
  void activate(WindowHandle window) { active_ = window; }

  /// The names of the calls in their order, such as "MessageBoxW".
  const std::vector<std::string>& calls() const { return calls_; }

  /// The boxes that were asked for, in their order.
  const std::vector<Box>& boxes() const { return boxes_; }

  WindowHandle GetActiveWindow() override;
  Long MessageBoxW(WindowHandle owner, const char16_t* text, const char16_t* caption, Long type) override;

 private:
  std::function<Long(const Box&)> user_;
  WindowHandle active_ = 0;
  std::vector<std::string> calls_;
  std::vector<Box> boxes_;
};

}  // namespace tessaly::platform::fake
