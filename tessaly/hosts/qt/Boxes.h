#pragma once

#include "tessaly/platform/MessageBoxes.h"

namespace tessaly::qt {

/// Message boxes of Qt's. Without a QApplication, and on any thread but that of the user interface, its calls
/// give 0 and nothing happens.
class Boxes final : public platform::MessageBoxes {
 public:
  platform::WindowHandle GetActiveWindow() override;

  /// 0 too for a set of buttons that is none, and where the owner goes while the box is shown.
  Long MessageBoxW(platform::WindowHandle owner, const char16_t* text, const char16_t* caption,
                   Long type) override;
};

}  // namespace tessaly::qt
