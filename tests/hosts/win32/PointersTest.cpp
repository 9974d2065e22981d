// The cursor over a control, and the tooltip of one.

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include "tessaly/forms/Screen.h"
#include "tessaly/hosts/win32/Pointers.h"
#include "tests/hosts/win32/ControlOfTestsWindow.h"

namespace tessaly::tests {
namespace {

class PointersTest : public testing::Test {
 protected:
  ~PointersTest() override { win32::screenOfThread().MousePointer(0); }

  static HCURSOR system(int number) { return LoadCursorW(nullptr, MAKEINTRESOURCEW(number)); }

  UserControl& surface() const { return place_.control().surface(); }

  /// A picture of 32 by 32, red on the left and clear on the right.
  static PictureReference redLeft() {
    std::vector<std::uint32_t> pixels(32 * 32);
    for (std::size_t index = 0; index < pixels.size(); ++index) {
      pixels[index] = index % 32 < 16 ? 0xFFFF0000 : 0;
    }
    return std::make_shared<const Picture>(PixelSize{32, 32}, pixels);
  }

  /// The tooltip's window that this thread has, or none.
  static HWND tip() {
    HWND found = nullptr;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
          wchar_t name[64] = L"";
          GetClassNameW(window, name, 64);
          if (std::wstring(name) == TOOLTIPS_CLASSW) *reinterpret_cast<HWND*>(result) = window;
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
  }

  std::wstring textOfTip() const {
    wchar_t text[256] = L"";
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.hwnd = place_.window();
    tool.uId = reinterpret_cast<UINT_PTR>(place_.window());
    tool.lpszText = text;
    SendMessageW(tip(), TTM_GETTEXTW, 256, reinterpret_cast<LPARAM>(&tool));
    return text;
  }

  ControlOfTestsWindow place_;
};

TEST_F(PointersTest, TheUsualOneIsTheArrow) {
  movePointer(place_.window(), {1, 1});
  EXPECT_EQ(GetCursor(), system(32512));
}

TEST_F(PointersTest, ANumberIsTheSystemsCursor) {
  surface().MousePointer(3);
  movePointer(place_.window(), {1, 1});
  EXPECT_EQ(GetCursor(), system(32513));
  surface().MousePointer(2);
  EXPECT_EQ(GetCursor(), system(32515));
}

TEST_F(PointersTest, APictureIsACursorWithItsHotSpot) {
  surface().setMouseIcon({redLeft(), {13, 5}});
  surface().MousePointer(99);
  movePointer(place_.window(), {1, 1});
  ICONINFO shown{};
  ASSERT_TRUE(GetIconInfo(GetCursor(), &shown));
  EXPECT_FALSE(shown.fIcon);
  EXPECT_EQ(shown.xHotspot, 13U);
  EXPECT_EQ(shown.yHotspot, 5U);
  BITMAP mask{};
  GetObjectW(shown.hbmMask, sizeof mask, &mask);
  EXPECT_EQ(mask.bmWidth, 32);
  const HDC context = CreateCompatibleDC(nullptr);
  const HGDIOBJ before = SelectObject(context, shown.hbmMask);
  EXPECT_EQ(GetPixel(context, 15, 0), 0U);
  EXPECT_EQ(GetPixel(context, 16, 31), 0xFFFFFFU);
  SelectObject(context, before);
  DeleteDC(context);
  DeleteObject(shown.hbmMask);
  DeleteObject(shown.hbmColor);
}

TEST_F(PointersTest, APictureWithoutAnImageIsTheUsualOne) {
  surface().setMouseIcon({std::make_shared<const Picture>(), {0, 0}});
  surface().MousePointer(99);
  movePointer(place_.window(), {1, 1});
  EXPECT_EQ(GetCursor(), system(32512));
}

TEST_F(PointersTest, TheScreensPointerShowsAtOnceAndOverEachControl) {
  surface().MousePointer(3);
  movePointer(place_.window(), {1, 1});
  place_.container().screen().MousePointer(11);
  EXPECT_EQ(GetCursor(), system(32514));
  movePointer(place_.window(), {2, 2});
  EXPECT_EQ(GetCursor(), system(32514));
  place_.container().screen().MousePointer(0);
  EXPECT_EQ(GetCursor(), system(32513));
}

TEST_F(PointersTest, AToolTipIsThereWhileItHasAText) {
  place_.container().setToolTip(u"");
  EXPECT_EQ(tip(), nullptr);
  place_.container().setToolTip(u"One & two");
  EXPECT_EQ(textOfTip(), L"One & two");
  place_.container().setToolTip(u"Three");
  EXPECT_EQ(textOfTip(), L"Three");
  place_.container().setToolTip(u"");
  EXPECT_EQ(tip(), nullptr);
}

TEST_F(PointersTest, AToolTipIsShownWhereThePointerRests) {
  place_.container().setToolTip(u"Three");
  movePointer(place_.window(), {1, 1});
  EXPECT_TRUE(pumpUntil([] { return IsWindowVisible(tip()) != FALSE; }));
}

TEST_F(PointersTest, AToolTipGoesWithItsWindow) {
  place_.container().setToolTip(u"Three");
  DestroyWindow(place_.window());
  EXPECT_EQ(tip(), nullptr);
}

}  // namespace
}  // namespace tessaly::tests
