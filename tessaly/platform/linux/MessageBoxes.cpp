#include "tessaly/platform/MessageBoxes.h"

#include "tessaly/platform/DesktopBodies.h"

namespace tessaly::platform {
namespace {

/// Without a toolkit nothing can be shown; a host that has one puts its own boxes in the place of these.
class NoMessageBoxes final : public MessageBoxes {
 public:
  WindowHandle GetActiveWindow() override { return 0; }

  Long MessageBoxW(WindowHandle /*owner*/, const char16_t* /*text*/, const char16_t* /*caption*/,
                   Long /*type*/) override {
    return 0;
  }
};

}  // namespace

MessageBoxes& ownMessageBoxes() {
  static NoMessageBoxes boxes;
  return boxes;
}

}  // namespace tessaly::platform
