// A container that can't tell whether the control is shown.

#include <gtest/gtest.h>

#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/forms/Container.h"
#include "tessaly/forms/Screen.h"
#include "tests/controls/transparentBitmapPeer.h"

namespace tessaly::tests {
namespace {

struct BlindContainer final : Container {
  bool isVisible() override { throw RuntimeError(RuntimeError::OutOfMemory); }

  void attach(UserControl&) override {}
  void detach() override {}
  PixelSize size() override { return {}; }
  void setSize(PixelSize) override {}
  platform::WindowHandle hWnd() override { return 0; }
  PixelPoint GetCursorPos() override { return {}; }
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

  Screen screen_;
};

TEST(BlindContainerTest, TheRestIsNotToldAndNothingFails) {
  BlindContainer container;
  transparentBitmap control(container);
  int rests = 0;
  control.events.OnButtonSelectedTiming = [&] { ++rests; };
  EXPECT_NO_THROW(transparentBitmapPeer::Timer2Tick(control));
  EXPECT_EQ(rests, 0);
  EXPECT_EQ(transparentBitmapPeer::selectedRaised(control), False);
}

}  // namespace
}  // namespace tessaly::tests
