// Windows on dense screens: one pixel of a control is several of its window's, wherever the two meet.

#include "tessaly/hosts/win32/Density.h"

#include <gtest/gtest.h>
#include <algorithm>

#include "tessaly/controls/URLLink.h"
#include "tessaly/forms/Label.h"
#include "tessaly/forms/headless/Form.h"
#include "tests/hosts/win32/ControlOfTestsWindow.h"
#include "tests/hosts/win32/MemoryPicture.h"

namespace tessaly::tests {
namespace {

using win32::Density;

/// WM_DPICHANGED_AFTERPARENT.
constexpr UINT kScreenChanged = 0x02E3;

TEST(DensityTest, TheUsualScreenHasAPixelForEach) {
  EXPECT_EQ(Density(96), Density());
  EXPECT_EQ(Density(72), Density());
  EXPECT_EQ(Density().toControl(PixelPoint{-3, 7}), (PixelPoint{-3, 7}));
  EXPECT_EQ(Density().toWindow(PixelSize{40, 30}), (PixelSize{40, 30}));
}

TEST(DensityTest, APointLiesInThePixelOfTheControlThatCoversIt) {
  EXPECT_EQ(Density(192).toControl(PixelPoint{5, -1}), (PixelPoint{2, -1}));
  EXPECT_EQ(Density(192).toControl(PixelPoint{-2, -3}), (PixelPoint{-1, -2}));
  EXPECT_EQ(Density(144).toControl(PixelPoint{2, 3}), (PixelPoint{1, 2}));
  EXPECT_EQ(Density(144).toControl(PixelPoint{-1, -2}), (PixelPoint{-1, -2}));
}

TEST(DensityTest, WhatGoesToTheWindowComesBackAsItWas) {
  for (const UINT dots : {96U, 110U, 120U, 144U, 168U, 192U, 288U, 480U}) {
    const Density density(dots);
    for (Long measure = -40; measure <= 32767; measure += measure < 200 ? 1 : 977) {
      EXPECT_EQ(density.toControl(density.toWindow(PixelPoint{measure, 0})), (PixelPoint{measure, 0}))
          << dots;
      EXPECT_EQ(density.toControl(density.toWindow(PixelSize{0, measure})), (PixelSize{0, measure})) << dots;
    }
  }
}

/// Forms on a screen of some density, which Windows itself does not have here.
class DenseScreenTest : public testing::Test {
 protected:
  DenseScreenTest() { put(96); }
  ~DenseScreenTest() override { win32::tellDensity(nullptr); }

  static void put(UINT dots) {
    dots_() = dots;
    win32::tellDensity([](HWND) { return dots_(); });
  }

  static std::vector<std::string> eventsOf(ControlOfTests& control, const std::function<void()>& action) {
    control.events.clear();
    action();
    std::erase(control.events, "Paint");
    return control.events;
  }

 private:
  static UINT& dots_() {
    static UINT dots = 96;
    return dots;
  }
};

TEST_F(DenseScreenTest, WindowsTellsOfTheUsualOneHere) {
  const ControlOfTestsWindow place;
  win32::tellDensity(nullptr);
  EXPECT_EQ(Density::of(place.window()), Density());
}

TEST_F(DenseScreenTest, AControlHasTheSizeThatItsWindowHasRoomFor) {
  for (const auto& [dots, size] :
       {std::pair{96U, PixelSize{40, 30}}, {144U, PixelSize{26, 20}}, {192U, PixelSize{20, 15}}}) {
    put(dots);
    const ControlOfTestsWindow place;
    EXPECT_EQ(place.container().size(), size);
    EXPECT_EQ(place.control().surface().Width(), 15.0 * size.width);
    EXPECT_EQ(place.control().surface().ScaleHeight(), size.height);
  }
}

TEST_F(DenseScreenTest, AnAssignedSizeIsTheControlsOwn) {
  for (const UINT dots : {120U, 144U, 192U}) {
    put(dots);
    const ControlOfTestsWindow place;
    for (Long side = 1; side < 40; ++side) {
      place.container().setSize({side, 40 - side});
      EXPECT_EQ(place.container().size(), (PixelSize{side, 40 - side})) << dots;
    }
  }
  put(192);
  const ControlOfTestsWindow place;
  EXPECT_EQ(eventsOf(place.control(), [&] { place.control().surface().Width(15 * 50); }),
            std::vector<std::string>{"Resize"});
  RECT inner{};
  GetClientRect(place.window(), &inner);
  EXPECT_EQ(inner.right, 100);
}

TEST_F(DenseScreenTest, ThePointerIsToldInTheControlsPixels) {
  put(192);
  const ControlOfTestsWindow place;
  movePointer(place.window(), {1, 1});
  EXPECT_EQ(eventsOf(place.control(),
                     [&] {
                       movePointer(place.window(), {5, 7});
                     }),
            std::vector<std::string>{"MouseMove 0 0 2,3"});
  EXPECT_EQ(place.container().ScreenToClient(place.container().GetCursorPos()), (PixelPoint{2, 3}));
  press();
  movePointer(place.window(), {-3, -1});
  EXPECT_EQ(eventsOf(place.control(), [] { release(); }), std::vector<std::string>{"MouseUp 1 0 -2,-1"});
}

TEST_F(DenseScreenTest, AKeyPutsThePointerIntoTheMiddleOfTheControl) {
  put(144);
  const ControlOfTestsWindow place(WS_TABSTOP);
  PixelPoint found;
  place.control().on["MouseDown"] = [&] {
    found = place.container().ScreenToClient(place.container().GetCursorPos());
  };
  SetFocus(place.window());
  EXPECT_EQ(eventsOf(place.control(),
                     [] {
                       keyDown(VK_SPACE);
                       keyUp(VK_SPACE);
                     }),
            (std::vector<std::string>{"MouseMove 0 0 13,10", "MouseDown 1 0 13,10", "MouseUp 1 0 13,10"}));
  EXPECT_EQ(found, (PixelPoint{13, 10}));
}

TEST_F(DenseScreenTest, AFormThatComesToAnotherScreenTellsItsControls) {
  const ControlOfTestsWindow place;
  put(192);
  const auto changed = [&] {
    eventsOf(place.control(), [&] { SendMessageW(place.window(), kScreenChanged, 0, 0); });
    return place.control().events;
  };
  EXPECT_EQ(changed(), std::vector<std::string>{"Resize"});
  EXPECT_EQ(place.container().size(), (PixelSize{20, 15}));
  EXPECT_TRUE(GetUpdateRect(place.window(), nullptr, FALSE));
  put(96);
  changed();
  // A host that gives its windows more room leaves their controls as they are.
  put(192);
  place.control().events.clear();
  MoveWindow(place.window(), 0, 0, 80, 60, FALSE);
  EXPECT_EQ(changed(), std::vector<std::string>{});
  EXPECT_EQ(place.container().size(), (PixelSize{40, 30}));
}

// The new density came with the size, and left nothing to be told of.
TEST_F(DenseScreenTest, ASizeThatComesWithAnotherDensityIsEnoughToPaintAnew) {
  const ControlOfTestsWindow place;
  pump();
  EXPECT_FALSE(GetUpdateRect(place.window(), nullptr, FALSE));
  put(192);
  EXPECT_EQ(eventsOf(place.control(), [&] { MoveWindow(place.window(), 0, 0, 80, 60, FALSE); }),
            std::vector<std::string>{});
  EXPECT_EQ(place.container().size(), (PixelSize{40, 30}));
  RECT anew{};
  EXPECT_TRUE(GetUpdateRect(place.window(), &anew, FALSE));
  EXPECT_EQ(anew.left, 0);
  EXPECT_EQ(anew.right, 80);
}

TEST_F(DenseScreenTest, AFormThatIsPaintedOnAnotherScreenBeforeItIsToldIsFoundOut) {
  const ControlOfTestsWindow place;
  put(144);
  InvalidateRect(place.window(), nullptr, FALSE);
  EXPECT_EQ(eventsOf(place.control(), [&] { UpdateWindow(place.window()); }),
            std::vector<std::string>{"Resize"});
  EXPECT_EQ(place.container().size(), (PixelSize{26, 20}));
  EXPECT_FALSE(GetUpdateRect(place.window(), nullptr, FALSE));
  put(96);
  place.control().on["Resize"] = [&] { DestroyWindow(place.window()); };
  InvalidateRect(place.window(), nullptr, FALSE);
  UpdateWindow(place.window());
  EXPECT_FALSE(IsWindow(place.window()));
}

TEST_F(DenseScreenTest, AControlThatGoesWhereItsFormComesToAnotherScreenIsNoHarm) {
  const ControlOfTestsWindow place;
  place.control().surface().MousePointer(99);
  place.control().on["Resize"] = [&] { DestroyWindow(place.window()); };
  put(192);
  SendMessageW(place.window(), kScreenChanged, 0, 0);
  EXPECT_FALSE(IsWindow(place.window()));
}

/// Each pixel as a square.
PictureReference enlarged(const Picture& picture, Long ratio) {
  const PixelSize size{picture.size().width * ratio, picture.size().height * ratio};
  std::vector<std::uint32_t> pixels;
  for (Long y = 0; y < size.height; ++y) {
    for (Long x = 0; x < size.width; ++x) {
      pixels.push_back(
          picture.pixels()[static_cast<std::size_t>(y / ratio * picture.size().width + x / ratio)]);
    }
  }
  return std::make_shared<const Picture>(size, std::move(pixels));
}

void dressDense(transparentBitmap& button) {
  std::vector<std::uint32_t> pixels;
  for (std::uint32_t index = 0; index < 24 * 20; ++index) {
    pixels.push_back(0xFF000000U | index * 2654435761U % 0x1000000U);
  }
  button.backcolor(0xF0D8B0);
  button.Picture(std::make_shared<const Picture>(PixelSize{24, 20}, std::move(pixels)));
  button.withBorder(2);
}

TEST_F(DenseScreenTest, WithAWholeNumberOfPixelsForEachTheyAreSquares) {
  FormWindow form;
  for (const Long ratio : {1, 2, 3}) {
    put(static_cast<UINT>(96 * ratio));
    const HWND window = form.add(win32::kPictureButtonClass, {10, 10, 10 + 48 * ratio, 10 + 48 * ratio});
    headless::Form usual;
    auto& twin = usual.add<transparentBitmap>({10, 10, 48, 48});
    dressDense(twin);
    dressDense(*win32::pictureButtonOf(window));
    movePointer(window, {24 * ratio, 24 * ratio});
    usual.movePointer({34, 34});
    const PictureReference wanted = enlarged(*usual.placeOf(twin).picture(), ratio);
    EXPECT_TRUE(samePixels(*printed(window), *wanted)) << ratio;
    EXPECT_TRUE(samePixels(*shown(window), *wanted)) << ratio;
    DestroyWindow(window);
  }
}

TEST_F(DenseScreenTest, WithOneAndAHalfForEachThePictureReachesTheWindowsEnds) {
  put(144);
  FormWindow form;
  const HWND window = form.add(win32::kPictureButtonClass, {10, 10, 82, 82});
  transparentBitmap& button = *win32::pictureButtonOf(window);
  std::vector<std::uint32_t> halves;
  for (int index = 0; index < 48 * 48; ++index) halves.push_back(index % 48 < 24 ? 0xFFFF0000 : 0xFF0000FF);
  button.Picture(std::make_shared<const Picture>(PixelSize{48, 48}, std::move(halves)));
  const PictureReference seen = printed(window);
  ASSERT_EQ(seen->size(), (PixelSize{72, 72}));
  for (const std::size_t row : {0U, 35U, 71U}) {
    for (const std::size_t column : {0U, 34U, 37U, 71U}) {
      EXPECT_EQ(seen->pixels()[row * 72 + column], column < 36 ? 0xFFFF0000 : 0xFF0000FF) << row << column;
    }
  }
}

TEST_F(DenseScreenTest, RoomForAPartOfAPixelHasTheBackground) {
  put(192);
  FormWindow form;
  const HWND window = form.add(win32::kPictureButtonClass, {10, 10, 10 + 41, 10 + 31});
  transparentBitmap& button = *win32::pictureButtonOf(window);
  button.backcolor(0x332211);
  const PictureReference seen = printed(window);
  ASSERT_EQ(seen->size(), (PixelSize{41, 31}));
  for (const std::uint32_t pixel : seen->pixels()) ASSERT_EQ(pixel, 0xFF112233U);
}

/// How many pixels of a window have no twin beside or below them in their square.
int oddPixels(const Picture& picture, Long ratio) {
  const Long width = picture.size().width;
  const auto at = [&](Long x, Long y) { return picture.pixels()[static_cast<std::size_t>(y * width + x)]; };
  int odd = 0;
  for (Long y = 0; y < picture.size().height / ratio * ratio; ++y) {
    for (Long x = 0; x < width / ratio * ratio; ++x) {
      odd += at(x, y) != at(x / ratio * ratio, y / ratio * ratio) ? 1 : 0;
    }
  }
  return odd;
}

TEST_F(DenseScreenTest, ATextIsDrawnInTheScreensOwnPixels) {
  FormWindow form;
  const auto widthOfText = [&](UINT dots, Long ratio, int& odd) {
    put(dots);
    const HWND window = form.add(win32::kUrlLinkClass, {0, 0, 120 * ratio, 40 * ratio});
    win32::urlLinkOf(window)->text(u"Reports on the web");
    win32::urlLinkOf(window)->alignment(0);
    const PictureReference seen = printed(window);
    odd = oddPixels(*seen, ratio);
    DestroyWindow(window);
    const auto width = static_cast<std::size_t>(seen->size().width);
    std::size_t last = 0;
    for (std::size_t index = 0; index < seen->pixels().size(); ++index) {
      if (seen->pixels()[index] == 0xFF0000FF) last = std::max(last, index % width);
    }
    return static_cast<int>(last);
  };
  int odd = 0;
  const int usual = widthOfText(96, 1, odd);
  EXPECT_GT(usual, 50);
  EXPECT_NEAR(widthOfText(192, 2, odd), 2 * usual, usual / 5);
  EXPECT_GT(odd, 20);
}

TEST_F(DenseScreenTest, AnIconOfThePointerIsAsLargeAsTheScreenIsDense) {
  put(192);
  FormWindow form;
  const HWND window = form.add(win32::kUrlLinkClass, {10, 10, 210, 50});
  const auto hotSpot = [&] {
    movePointer(window, {9, 9});
    SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    ICONINFO icon{};
    EXPECT_TRUE(GetIconInfo(GetCursor(), &icon));
    DeleteObject(icon.hbmMask);
    DeleteObject(icon.hbmColor);
    return POINT{static_cast<LONG>(icon.xHotspot), static_cast<LONG>(icon.yHotspot)};
  };
  EXPECT_EQ(hotSpot().x, 26);
  EXPECT_EQ(hotSpot().y, 10);
  put(96);
  SendMessageW(window, kScreenChanged, 0, 0);
  EXPECT_EQ(hotSpot().x, 13);
  put(192);
  MoveWindow(window, 10, 10, 400, 80, FALSE);
  EXPECT_EQ(hotSpot().x, 26);
}

}  // namespace
}  // namespace tessaly::tests
