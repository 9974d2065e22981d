// The picture button as a class of windows: how it is made, found, kept, shown and let go.

#include <gtest/gtest.h>

#include "tessaly/forms/headless/Form.h"
#include "tessaly/hosts/win32/Timers.h"
#include "tests/hosts/win32/FormWindow.h"
#include "tests/hosts/win32/MemoryPicture.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

using win32::pictureButtonOf;

constexpr PixelPoint kInsideButton{24, 24};

PictureReference coloured(Long width, Long height) {
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (std::size_t index = 0; index < pixels.size(); ++index) {
    pixels[index] = 0xFF000000U | static_cast<std::uint32_t>(index * 2654435761U % 0x1000000U);
  }
  return std::make_shared<const Picture>(PixelSize{width, height}, pixels);
}

void dress(transparentBitmap& button) {
  button.backcolor(0xF0D8B0);
  button.Picture(coloured(24, 20));
  // An empty one would show the system's colour of buttons.
  button.disabledPicture(coloured(20, 24));
  button.AddBitmap(coloured(8, 8), 8, 0xFF00FF);
  button.withBorder(2);
}

class PictureButtonWindowTest : public testing::Test {
 protected:
  void point(PixelPoint place) const { movePointer(form_.button(), place); }

  FormWindow form_;
};

TEST_F(PictureButtonWindowTest, IsRegisteredOnceHoweverOften) {
  EXPECT_TRUE(win32::registerControls(GetModuleHandleW(nullptr)));
  EXPECT_TRUE(win32::registerControls(GetModuleHandleW(nullptr)));
}

TEST_F(PictureButtonWindowTest, IsMadeByItsClassInADialogInDialogUnits) {
#pragma pack(push, 2)
  struct {
    DLGTEMPLATE dialog{WS_POPUP | DS_SETFONT, 0, 1, 0, 0, 200, 100};
    WORD menu = 0;
    WORD dialogClass = 0;
    wchar_t title[2] = L"D";
    WORD points = 8;
    wchar_t font[14] = L"MS Sans Serif";
    DLGITEMTEMPLATE item{WS_CHILD | WS_VISIBLE, 0, 10, 12, 30, 20, 77};
    wchar_t itemClass[26] = L"Tessaly.transparentBitmap";
    wchar_t text[5] = L"Open";
    WORD creationData = 0;
  } resource;
#pragma pack(pop)
  static_assert(offsetof(decltype(resource), item) % 4 == 0);
  const HWND dialog = CreateDialogIndirectParamW(
      GetModuleHandleW(nullptr), &resource.dialog, form_.window(),
      [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
  ASSERT_NE(dialog, nullptr);
  const HWND window = GetDlgItem(dialog, 77);
  ASSERT_NE(pictureButtonOf(window), nullptr);
  RECT units{0, 0, 30, 20};
  MapDialogRect(dialog, &units);
  EXPECT_TRUE(pictureButtonOf(window)->enabled());
  RECT inner{};
  GetClientRect(window, &inner);
  EXPECT_TRUE(EqualRect(&inner, &units));
  pictureButtonOf(window)->backcolor(0x102030);
  EXPECT_EQ(printed(window)->size(), (PixelSize{inner.right, inner.bottom}));
  EXPECT_EQ(printed(window)->pixels()[0], 0xFF302010U);
  DestroyWindow(dialog);
}

TEST_F(PictureButtonWindowTest, TwoWindowsHaveTwoControls) {
  transparentBitmap& one = form_.addButton({0, 0});
  const HWND first = form_.button();
  transparentBitmap& other = form_.addButton({60, 0});
  EXPECT_NE(&one, &other);
  EXPECT_EQ(pictureButtonOf(first), &one);
  EXPECT_EQ(pictureButtonOf(form_.button()), &other);
  EXPECT_EQ(pictureButtonOf(form_.window()), nullptr);
  EXPECT_EQ(pictureButtonOf(nullptr), nullptr);
}

TEST_F(PictureButtonWindowTest, KeepsItsPropertiesInABag) {
  transparentBitmap& button = form_.addButton();
  dress(button);
  button.automaticClickTiming(77);
  const PropertyBag bag = win32::propertiesOf(form_.button());
  const HWND window = win32::restorePictureButton(form_.window(), {100, 100, 148, 148}, 5, WS_VISIBLE, bag);
  EXPECT_EQ(GetDlgItem(form_.window(), 5), window);
  EXPECT_EQ(pictureButtonOf(window)->automaticClickTiming(), 77);
  EXPECT_EQ(pictureButtonOf(window)->withBorder(), 2);
  // Overlays are not kept.
  button.ClearBitmaps();
  EXPECT_EQ(printed(window)->pixels().size(), 48U * 48U);
  EXPECT_TRUE(samePixels(*printed(window), *printed(form_.button())));
}

TEST_F(PictureButtonWindowTest, WhatABagRaisesComesOutOfTheCall) {
  PropertyBag bag;
  bag.WriteProperty(u"WithBorder", Variant(u"wide"), Variant(Long{0}));
  EXPECT_EQ(errorOf([&] {
              win32::restorePictureButton(form_.window(), {0, 0, 9, 9}, 5, 0, bag);
            }),
            RuntimeError::TypeMismatch);
  EXPECT_EQ(GetDlgItem(form_.window(), 5), nullptr);
  EXPECT_TRUE(form_.errors().empty());
  EXPECT_EQ(errorOf([&] { win32::propertiesOf(form_.window()); }), RuntimeError::SubscriptOutOfRange);
  // What failed waits for no other control.
  EXPECT_EQ(form_.addButton().automaticClickTiming(), 500);
}

TEST_F(PictureButtonWindowTest, ShowsWhatAFormWithoutADisplayShows) {
  headless::Form other;
  auto& twin = other.add<transparentBitmap>({20, 20, 48, 48});
  twin.withBorder(2);
  transparentBitmap& button = form_.addButton();
  dress(twin);
  dress(button);
  pump();
  const auto expectTwins = [&](const char* state) {
    SCOPED_TRACE(state);
    const PictureReference wanted = other.placeOf(twin).picture();
    EXPECT_TRUE(samePixels(*printed(form_.button()), *wanted));
    EXPECT_TRUE(samePixels(*shown(form_.button()), *wanted));
  };
  expectTwins("idle");
  point(kInsideButton);
  other.movePointer({44, 44});
  expectTwins("hovering");
  press();
  other.press();
  expectTwins("pressed");
  button.enabled(False);
  twin.enabled(False);
  expectTwins("not enabled");
  release();
}

TEST_F(PictureButtonWindowTest, AnAssignmentShowsAtOnce) {
  transparentBitmap& button = form_.addButton();
  pump();
  button.backcolor(0x332211);
  const HDC context = GetDC(form_.button());
  EXPECT_EQ(GetPixel(context, 0, 0), 0x332211U);
  ReleaseDC(form_.button(), context);
  EXPECT_FALSE(GetUpdateRect(form_.button(), nullptr, FALSE));
}

TEST_F(PictureButtonWindowTest, IsDestroyedByItsHostInItsClick) {
  transparentBitmap& button = form_.addButton();
  const auto sign = std::make_shared<int>(1);
  long held = 0;
  button.events.OnButtonClick = [&, sign] {
    DestroyWindow(form_.button());
    button.backcolor(1);
    button.withBorder(3);
    held = sign.use_count();
  };
  point(kInsideButton);
  press();
  release();
  // The handler holds the sign, and while it was called a copy of it did too.
  EXPECT_EQ(held, 3);
  EXPECT_EQ(sign.use_count(), 1);
  EXPECT_FALSE(IsWindow(form_.button()));
  EXPECT_TRUE(form_.errors().empty());
}

TEST_F(PictureButtonWindowTest, IsDestroyedInAnAutomaticClickAndNoOtherFollows) {
  transparentBitmap& button = form_.addButton();
  int clicks = 0;
  button.automaticClick(True);
  button.automaticClickFirstTiming(10);
  button.events.OnButtonClick = [&] {
    if (++clicks == 2) DestroyWindow(GetParent(form_.button()));
  };
  point(kInsideButton);
  press();
  EXPECT_TRUE(pumpUntil([&] { return clicks == 2; }));
  release();
  EXPECT_EQ(clicks, 2);
  EXPECT_FALSE(IsWindow(form_.button()));
}

TEST_F(PictureButtonWindowTest, TwoHundredIdleOnesWakeNobody) {
  std::vector<HWND> windows;
  for (Long number = 0; number < 200; ++number) {
    dress(form_.addButton({number % 20 * 18, number / 20 * 18}));
    windows.push_back(form_.button());
  }
  pump();
  const auto running = [&](HWND window) {
    int found = 0;
    for (UINT_PTR number = 1; number <= 10; ++number) {
      found += KillTimer(window, win32::Timers::kNumbersBegin + number) != FALSE ? 1 : 0;
    }
    return found;
  };
  for (const HWND window : windows) EXPECT_EQ(running(window), 0);
  EXPECT_EQ(HIWORD(GetQueueStatus(QS_ALLINPUT)), 0);
  point({47, 47});
  EXPECT_EQ(running(windows.back()), 2);
}

TEST_F(PictureButtonWindowTest, AnErrorShowsInABoxUnlessItsHostWantsToHearOfIt) {
  win32::setErrorHandler({});
  transparentBitmap& button = form_.addButton();
  button.events.OnButtonClick = [] { throw RuntimeError(RuntimeError::TypeMismatch); };
  std::wstring text;
  static std::wstring* told;
  told = &text;
  SetTimer(form_.window(), 1, 10, [](HWND window, UINT, UINT_PTR number, DWORD) {
    const HWND box = FindWindowW(L"#32770", L"A form");
    if (box == nullptr) return;
    KillTimer(window, number);
    wchar_t words[256] = L"";
    GetDlgItemTextW(box, 0xFFFF, words, 256);
    *told = words;
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  });
  point(kInsideButton);
  press();
  release();
  EXPECT_NE(text.find(L"(13)"), std::wstring::npos) << testing::PrintToString(text);
}

}  // namespace
}  // namespace tessaly::tests
