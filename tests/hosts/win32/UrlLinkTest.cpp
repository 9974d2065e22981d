// The hyperlink as a class of windows: how it is made, shown, clicked, reached and let go.

#include <gtest/gtest.h>
#include <windows.h>

#include <oleacc.h>
#include <algorithm>

#include "tessaly/controls/URLLink.h"
#include "tessaly/forms/Screen.h"
#include "tessaly/hosts/win32/Pointers.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/MessageBoxes.h"
#include "tessaly/platform/fake/Shell.h"
#include "tests/hosts/win32/FormWindow.h"
#include "tests/hosts/win32/MemoryPicture.h"

namespace tessaly::tests {
namespace {

using platform::fake::MessageBoxes;
using platform::fake::Shell;

constexpr std::uint32_t kBlue = 0xFF0000FF;
constexpr RECT kBounds{20, 16, 220, 56};

class UrlLinkTest : public testing::Test {
 protected:
  UrlLinkTest() {
    win32::registerControls(GetModuleHandleW(nullptr));
    make(0);
  }
  ~UrlLinkTest() override { win32::screenOfThread().MousePointer(0); }

  void make(DWORD style) {
    if (window_ != nullptr) DestroyWindow(window_);
    window_ = form_.add(win32::kUrlLinkClass, kBounds, style);
    link().URL(u"https://host.example/");
  }

  URLLink& link() const { return *win32::urlLinkOf(window_); }

  static void pressAndRelease(DWORD down = MOUSEEVENTF_LEFTDOWN, DWORD up = MOUSEEVENTF_LEFTUP) {
    press(down);
    release(up);
  }

  void click() const {
    movePointer(window_, {5, 5});
    pressAndRelease();
  }

  void type(WORD key) const {
    SetFocus(window_);
    keyDown(key);
    keyUp(key);
  }

  std::size_t opened() const { return shell_.opened().size(); }

  /// The first and the last column with the blue of the text; none gives the width and -1.
  std::pair<Long, Long> columnsOfText() const {
    const PictureReference picture = printed(window_);
    const PixelSize size = picture->size();
    std::pair<Long, Long> found{size.width, -1};
    for (std::size_t i = 0; i < picture->pixels().size(); ++i) {
      if (picture->pixels()[i] != kBlue) continue;
      const auto column = static_cast<Long>(i % static_cast<std::size_t>(size.width));
      found = {std::min(found.first, column), std::max(found.second, column)};
    }
    return found;
  }

  FormWindow form_;
  HWND window_ = nullptr;
  Shell shell_;
  MessageBoxes boxes_;

 private:
  platform::Override shellInForce_{shell_};
  platform::Override boxesInForce_{boxes_};
};

TEST_F(UrlLinkTest, IsMadeByItsClassAndIsNoButton) {
  EXPECT_EQ(link().text(), u"Gleamline Home Page");
  EXPECT_EQ(win32::pictureButtonOf(window_), nullptr);
  EXPECT_EQ(win32::urlLinkOf(form_.window()), nullptr);
}

TEST_F(UrlLinkTest, ShowsItsTextInBlueWhereItsAlignmentTells) {
  link().text(u"Help");
  link().alignment(0);
  const auto [left, right] = columnsOfText();
  EXPECT_LT(left, 5);
  EXPECT_LT(right, 60);
  const Long width = right - left;
  link().alignment(1);
  EXPECT_GT(columnsOfText().second, 195);
  link().alignment(2);
  const Long middle = (200 - width) / 2;
  EXPECT_NEAR(columnsOfText().first, middle, 3);
  link().text(u"");
  EXPECT_EQ(columnsOfText().second, -1);
}

TEST_F(UrlLinkTest, OpensItsURLForItsWindowUnderAnHourglass) {
  std::int16_t pointer = 0;
  shell_.onOpen([&](const Shell::Opened&) { pointer = win32::screenOfThread().MousePointer(); });
  click();
  ASSERT_EQ(opened(), 1U);
  EXPECT_EQ(shell_.opened().at(0).file, "https://host.example/");
  EXPECT_EQ(shell_.opened().at(0).owner, reinterpret_cast<platform::WindowHandle>(window_));
  EXPECT_EQ(pointer, 11);
  EXPECT_EQ(win32::screenOfThread().MousePointer(), 0);
}

TEST_F(UrlLinkTest, OpensNothingForTheRightButton) {
  movePointer(window_, {5, 5});
  pressAndRelease(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
  EXPECT_EQ(opened(), 0U);
}

TEST_F(UrlLinkTest, HasAHandAsItsPointer) {
  movePointer(window_, {5, 5});
  SendMessageW(window_, WM_SETCURSOR, reinterpret_cast<WPARAM>(window_), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
  ICONINFO icon{};
  ASSERT_TRUE(GetIconInfo(GetCursor(), &icon));
  EXPECT_EQ(icon.xHotspot, 13U);
  EXPECT_EQ(icon.yHotspot, 5U);
  EXPECT_FALSE(icon.fIcon);
  DeleteObject(icon.hbmMask);
  DeleteObject(icon.hbmColor);
}

TEST_F(UrlLinkTest, IsOpenedWithKeysWhereTabReachesIt) {
  type(VK_RETURN);
  EXPECT_EQ(opened(), 0U);
  make(WS_TABSTOP);
  type(VK_RETURN);
  EXPECT_EQ(opened(), 1U);
  type(VK_SPACE);
  EXPECT_EQ(opened(), 2U);
  type('A');
  EXPECT_EQ(opened(), 2U);
}

TEST_F(UrlLinkTest, ShowsThatItHasTheFocus) {
  make(WS_TABSTOP);
  const PictureReference before = printed(window_);
  SetFocus(window_);
  EXPECT_FALSE(samePixels(*printed(window_), *before));
  SetFocus(form_.window());
  EXPECT_TRUE(samePixels(*printed(window_), *before));
}

TEST_F(UrlLinkTest, MayBeDestroyedInItsEvent) {
  link().events.GoToURL = [&](String&, Boolean&) { DestroyWindow(window_); };
  click();
  EXPECT_FALSE(IsWindow(window_));
  ASSERT_EQ(opened(), 1U);
  EXPECT_EQ(shell_.opened().at(0).owner, 0);
  window_ = nullptr;
}

TEST_F(UrlLinkTest, MayBeDestroyedWithItsFormInAnEventByKey) {
  make(WS_TABSTOP);
  link().events.GoToURL = [&](String& URL, Boolean&) {
    DestroyWindow(form_.window());
    URL = u"https://other.example/";
  };
  SetFocus(window_);
  keyDown(VK_SPACE);
  keyUp(VK_SPACE);
  EXPECT_FALSE(IsWindow(window_));
  ASSERT_EQ(opened(), 1U);
  EXPECT_EQ(shell_.opened().at(0).file, "https://other.example/");
  EXPECT_EQ(win32::screenOfThread().MousePointer(), 0);
  window_ = nullptr;
}

TEST_F(UrlLinkTest, MayBeDestroyedInAnEventThatIsCancelledOrFails) {
  link().events.GoToURL = [&](String&, Boolean& cancel) {
    DestroyWindow(window_);
    cancel = True;
  };
  click();
  EXPECT_EQ(opened(), 0U);
  window_ = nullptr;
  make(0);
  link().events.GoToURL = [&](String&, Boolean&) {
    DestroyWindow(window_);
    throw RuntimeError(RuntimeError::Overflow);
  };
  click();
  EXPECT_EQ(opened(), 0U);
  EXPECT_EQ(form_.errors(), std::vector<Long>{RuntimeError::Overflow});
  window_ = nullptr;
}

TEST_F(UrlLinkTest, MayBeDestroyedWhileTheShellOpensAndThePointerComesBack) {
  shell_.onOpen([&](const Shell::Opened&) { DestroyWindow(form_.window()); });
  click();
  EXPECT_EQ(win32::screenOfThread().MousePointer(), 0);
  window_ = nullptr;
}

TEST_F(UrlLinkTest, TellsOfACallThatFails) {
  shell_.raise(RuntimeError::EntryPointNotFound);
  click();
  ASSERT_EQ(boxes_.boxes().size(), 1U);
  EXPECT_EQ(boxes_.boxes().at(0).type, 0x10);
  EXPECT_TRUE(form_.errors().empty());
}

TEST_F(UrlLinkTest, IsKeptAndRestored) {
  link().text(u"Help");
  link().alignment(2);
  const PropertyBag bag = win32::propertiesOf(window_);
  const HWND other = win32::restoreUrlLink(form_.window(), kBounds, 7, WS_VISIBLE, bag);
  EXPECT_EQ(win32::urlLinkOf(other)->text(), u"Help");
  EXPECT_EQ(win32::urlLinkOf(other)->alignment(), 2);
  EXPECT_EQ(GetDlgCtrlID(other), 7);
  PropertyBag bad;
  bad.WriteProperty(u"Alignment", Variant(u"left"), Variant(u""));
  EXPECT_EQ(win32::urlLinkOf(win32::restoreUrlLink(form_.window(), kBounds, 8, 0, bad))->alignment(), 1);
}

/// What assistive technology hears of a link.
class AccessibleLinkTest : public UrlLinkTest {
 protected:
  AccessibleLinkTest() { CoInitialize(nullptr); }
  ~AccessibleLinkTest() override {
    if (object_ != nullptr) object_->Release();
    CoUninitialize();
  }

  void SetUp() override {
    void* object = nullptr;
    AccessibleObjectFromWindow(window_, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &object);
    object_ = static_cast<IAccessible*>(object);
    ASSERT_NE(object_, nullptr);
  }

  static VARIANT self() {
    VARIANT result{};
    result.vt = VT_I4;
    return result;
  }

  static std::wstring taken(BSTR text) {
    const std::wstring result = text != nullptr ? text : L"";
    SysFreeString(text);
    return result;
  }

  std::wstring name() const {
    BSTR name = nullptr;
    object_->get_accName(self(), &name);
    return taken(name);
  }

  IAccessible* object_ = nullptr;
};

TEST_F(AccessibleLinkTest, ItIsALinkThatCanBeFollowed) {
  VARIANT role{};
  EXPECT_EQ(object_->get_accRole(self(), &role), S_OK);
  EXPECT_EQ(role.lVal, ROLE_SYSTEM_LINK);
  VARIANT state{};
  EXPECT_EQ(object_->get_accState(self(), &state), S_OK);
  EXPECT_TRUE(state.lVal & STATE_SYSTEM_LINKED);
  EXPECT_FALSE(state.lVal & STATE_SYSTEM_UNAVAILABLE);
  BSTR action = nullptr;
  EXPECT_EQ(object_->get_accDefaultAction(self(), &action), S_OK);
  EXPECT_EQ(taken(action), L"Jump");
  EXPECT_EQ(object_->accDoDefaultAction(self()), S_OK);
  pump();
  EXPECT_EQ(opened(), 1U);
}

TEST_F(AccessibleLinkTest, ItsNameIsTheWindowsTextOrElseItsOwn) {
  link().text(u"\u65E5\u672C");
  EXPECT_EQ(name(), L"\u65E5\u672C");
  SetWindowTextW(window_, L"&Help");
  EXPECT_EQ(name(), L"Help");
}

TEST_F(AccessibleLinkTest, ANewTextIsANewName) {
  static int changes;
  changes = 0;
  const HWINEVENTHOOK hook = SetWinEventHook(
      EVENT_OBJECT_NAMECHANGE, EVENT_OBJECT_NAMECHANGE, GetModuleHandleW(nullptr),
      [](HWINEVENTHOOK, DWORD, HWND, LONG object, LONG, DWORD, DWORD) {
        if (object == OBJID_CLIENT) ++changes;
      },
      GetCurrentProcessId(), GetCurrentThreadId(), WINEVENT_INCONTEXT);
  link().text(u"Help");
  EXPECT_EQ(changes, 1);
  UnhookWinEvent(hook);
}

TEST_F(AccessibleLinkTest, WhoAsksMayOutliveTheWindow) {
  DestroyWindow(window_);
  window_ = nullptr;
  name();
  EXPECT_NE(object_->accDoDefaultAction(self()), S_OK);
}

}  // namespace
}  // namespace tessaly::tests
