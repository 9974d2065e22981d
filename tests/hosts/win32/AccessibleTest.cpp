// What assistive technology hears of a picture button.

#include <gtest/gtest.h>
#include <windows.h>

#include <oleacc.h>

#include <string>

#include "tests/hosts/win32/FormWindow.h"

namespace tessaly::tests {
namespace {

class AccessibleTest : public testing::Test {
 protected:
  AccessibleTest() { CoInitialize(nullptr); }
  ~AccessibleTest() override {
    if (object_ != nullptr) object_->Release();
    CoUninitialize();
  }

  static VARIANT self() {
    VARIANT result{};
    result.vt = VT_I4;
    return result;
  }

  transparentBitmap& make(DWORD style) {
    transparentBitmap& button = form_.addButton({20, 20}, style);
    void* object = nullptr;
    AccessibleObjectFromWindow(form_.button(), static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                               &object);
    object_ = static_cast<IAccessible*>(object);
    return button;
  }

  LONG state() const {
    VARIANT result{};
    EXPECT_EQ(object_->get_accState(self(), &result), S_OK);
    return result.lVal;
  }

  FormWindow form_;
  IAccessible* object_ = nullptr;
};

TEST_F(AccessibleTest, ItIsAPushButtonWithTheWindowsTextAsItsName) {
  make(0);
  ASSERT_NE(object_, nullptr);
  SetWindowTextW(form_.button(), L"&Open");
  VARIANT role{};
  EXPECT_EQ(object_->get_accRole(self(), &role), S_OK);
  EXPECT_EQ(role.lVal, ROLE_SYSTEM_PUSHBUTTON);
  BSTR name = nullptr;
  EXPECT_EQ(object_->get_accName(self(), &name), S_OK);
  EXPECT_EQ(std::wstring(name), L"Open");
  SysFreeString(name);
}

TEST_F(AccessibleTest, ItTellsWhetherItCanBeUsedReachedAndIsPressed) {
  transparentBitmap& button = make(WS_TABSTOP);
  ASSERT_NE(object_, nullptr);
  EXPECT_EQ(state() & (STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_PRESSED),
            STATE_SYSTEM_FOCUSABLE);
  SetFocus(form_.button());
  EXPECT_TRUE(state() & STATE_SYSTEM_FOCUSED);
  movePointer(form_.button(), {5, 5});
  press();
  EXPECT_TRUE(state() & STATE_SYSTEM_PRESSED);
  release();
  button.enabled(False);
  EXPECT_TRUE(state() & STATE_SYSTEM_UNAVAILABLE);
  EXPECT_FALSE(state() & STATE_SYSTEM_PRESSED);
}

TEST_F(AccessibleTest, AButtonThatTabDoesNotReachSaysSo) {
  make(0);
  ASSERT_NE(object_, nullptr);
  EXPECT_FALSE(state() & STATE_SYSTEM_FOCUSABLE);
}

TEST_F(AccessibleTest, ItsDefaultActionIsAClick) {
  transparentBitmap& button = make(0);
  ASSERT_NE(object_, nullptr);
  int clicks = 0;
  button.events.OnButtonClick = [&] { ++clicks; };
  EXPECT_EQ(object_->accDoDefaultAction(self()), S_OK);
  EXPECT_EQ(clicks, 0);
  pump();
  EXPECT_EQ(clicks, 1);
}

TEST_F(AccessibleTest, WhatTheUserCouldNotClickIsNotClicked) {
  transparentBitmap& button = make(0);
  ASSERT_NE(object_, nullptr);
  int clicks = 0;
  button.events.OnButtonClick = [&] { ++clicks; };
  for (const HWND disabled : {form_.window(), form_.button()}) {
    EnableWindow(disabled, FALSE);
    EXPECT_NE(object_->accDoDefaultAction(self()), S_OK);
    EnableWindow(disabled, TRUE);
  }
  button.enabled(False);
  EXPECT_NE(object_->accDoDefaultAction(self()), S_OK);
  pump();
  EXPECT_EQ(clicks, 0);
}

// The second click ran in the loop of the first one's dialog, and opened another.
TEST_F(AccessibleTest, AClickDoesNotComeBehindADialog) {
  transparentBitmap& button = make(0);
  ASSERT_NE(object_, nullptr);
  int clicks = 0;
  button.events.OnButtonClick = [&] {
    ++clicks;
    if (clicks == 1) passDialog(form_.window());
  };
  EXPECT_EQ(object_->accDoDefaultAction(self()), S_OK);
  EXPECT_EQ(object_->accDoDefaultAction(self()), S_OK);
  pump();
  EXPECT_EQ(clicks, 1);
  // A host's own click is the host's affair.
  EnableWindow(form_.window(), FALSE);
  SendMessageW(form_.button(), BM_CLICK, 0, 0);
  EnableWindow(form_.window(), TRUE);
  EXPECT_EQ(clicks, 2);
}

TEST_F(AccessibleTest, WhatLiesInADisabledPartOfTheFormOrIsNotSeenIsNotClicked) {
  make(0);
  ASSERT_NE(object_, nullptr);
  const HWND part = form_.add(L"STATIC", {100, 100, 200, 200});
  SetParent(form_.button(), part);
  EXPECT_EQ(object_->accDoDefaultAction(self()), S_OK);
  EnableWindow(part, FALSE);
  EXPECT_NE(object_->accDoDefaultAction(self()), S_OK);
  EnableWindow(part, TRUE);
  ShowWindow(part, SW_HIDE);
  EXPECT_NE(object_->accDoDefaultAction(self()), S_OK);
}

TEST_F(AccessibleTest, WhoAsksMayOutliveTheWindow) {
  make(0);
  ASSERT_NE(object_, nullptr);
  DestroyWindow(form_.button());
  VARIANT role{};
  object_->get_accRole(self(), &role);
  EXPECT_NE(role.lVal, ROLE_SYSTEM_PUSHBUTTON);
  EXPECT_NE(object_->accDoDefaultAction(self()), S_OK);
}

TEST_F(AccessibleTest, AChangeOfItsStateIsTold) {
  static int changes;
  changes = 0;
  transparentBitmap& button = make(0);
  const HWINEVENTHOOK hook = SetWinEventHook(
      EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_STATECHANGE, GetModuleHandleW(nullptr),
      [](HWINEVENTHOOK, DWORD, HWND, LONG object, LONG, DWORD, DWORD) {
        if (object == OBJID_CLIENT) ++changes;
      },
      GetCurrentProcessId(), GetCurrentThreadId(), WINEVENT_INCONTEXT);
  button.enabled(False);
  EXPECT_GE(changes, 1);
  UnhookWinEvent(hook);
}

}  // namespace
}  // namespace tessaly::tests
