#include "tessaly/forms/NoContainer.h"

#include "tessaly/forms/Screen.h"

namespace tessaly {
namespace {

/// All controls without a container share it, so it keeps nothing.
struct NoScreen final : Screen {
  using Screen::MousePointer;
  void MousePointer(std::int16_t) override {}
};

struct NoContainer final : Container {
  void attach(UserControl&) override {}
  void detach() override {}
  PixelSize size() override { return {}; }
  void setSize(PixelSize) override {}
  platform::WindowHandle hWnd() override { return 0; }
  bool isVisible() override { return false; }
  PixelPoint GetCursorPos() override { return {-1, -1}; }
  PixelPoint ScreenToClient(PixelPoint point) override { return point; }
  void setCapture(bool) override {}
  void setTimer(Timer&, Long) override {}
  void setCursor(std::int16_t, const MouseIcon&) override {}
  void setToolTip(std::u16string_view) override {}
  void repaint() override {}
  void repaintLater() override {}
  bool UserMode() override { return true; }
  void PropertyChanged(std::u16string_view) override {}
  void onError(const RuntimeError&) noexcept override {}
  OLE_COLOR systemColour(Long) override { return 0; }
  Screen& screen() override { return screen_; }

  NoScreen screen_;
};

}  // namespace

Container& noContainer() {
  static NoContainer none;
  return none;
}

}  // namespace tessaly
