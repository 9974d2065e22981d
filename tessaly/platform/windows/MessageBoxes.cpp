#include "tessaly/platform/MessageBoxes.h"

#include <windows.h>

#include "tessaly/platform/DesktopBodies.h"

namespace tessaly::platform {
namespace {

class WindowsMessageBoxes final : public MessageBoxes {
 public:
  WindowHandle GetActiveWindow() override { return reinterpret_cast<WindowHandle>(::GetActiveWindow()); }

  Long MessageBoxW(WindowHandle owner, const char16_t* text, const char16_t* caption, Long type) override {
    return ::MessageBoxW(reinterpret_cast<HWND>(owner), reinterpret_cast<const wchar_t*>(text),
                         reinterpret_cast<const wchar_t*>(caption), static_cast<UINT>(type));
  }
};

}  // namespace

MessageBoxes& ownMessageBoxes() {
  static WindowsMessageBoxes boxes;
  return boxes;
}

}  // namespace tessaly::platform
