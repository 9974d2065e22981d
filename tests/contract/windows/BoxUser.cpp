#include "tests/contract/BoxUser.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>

#include "tessaly/base/Text.h"

namespace tessaly::tests {
namespace {

constexpr int kTextOfBox = 0xFFFF;

String textOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return fromWide(text);
}

bool isOfClass(HWND window, std::wstring_view name) {
  wchar_t found[64] = {};
  GetClassNameW(window, found, 64);
  return name == found;
}

BOOL CALLBACK collectButton(HWND child, LPARAM box) {
  if (isOfClass(child, L"Button") && IsWindowVisible(child))
    reinterpret_cast<ShownBox*>(box)->buttons.push_back(GetDlgCtrlID(child));
  return TRUE;
}

Long bitsOf(HICON icon) {
  if (icon == nullptr) return 0;
  const std::vector<std::pair<LPCTSTR, Long>> known = {
      {IDI_HAND, 0x10}, {IDI_QUESTION, 0x20}, {IDI_EXCLAMATION, 0x30}, {IDI_ASTERISK, 0x40}};
  const auto found = std::find_if(known.begin(), known.end(),
                                  [icon](const auto& each) { return LoadIcon(nullptr, each.first) == icon; });
  return found != known.end() ? found->second : -1;
}

BOOL CALLBACK findIcon(HWND child, LPARAM box) {
  const bool hasIcon =
      isOfClass(child, L"Static") && (GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
  if (hasIcon)
    reinterpret_cast<ShownBox*>(box)->icon =
        bitsOf(reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0)));
  return TRUE;
}

ShownBox lookAt(HWND dialog) {
  ShownBox box{reinterpret_cast<platform::WindowHandle>(GetWindow(dialog, GW_OWNER)),
               textOf(GetDlgItem(dialog, kTextOfBox)),
               textOf(dialog),
               {},
               0,
               0};
  EnumChildWindows(dialog, collectButton, reinterpret_cast<LPARAM>(&box));
  EnumChildWindows(dialog, findIcon, reinterpret_cast<LPARAM>(&box));
  // Return presses the button that has the focus.
  box.defaultButton = GetDlgCtrlID(GetFocus());
  return box;
}

BOOL CALLBACK findDialog(HWND window, LPARAM found) {
  if (!isOfClass(window, L"#32770")) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

class UserByTimer;
UserByTimer* user = nullptr;

/// Its timer runs in the box's own loop of messages.
class UserByTimer final : public BoxUser {
 public:
  UserByTimer() : timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, onTimer)) { user = this; }
  UserByTimer(const UserByTimer&) = delete;
  UserByTimer& operator=(const UserByTimer&) = delete;
  ~UserByTimer() override {
    KillTimer(nullptr, timer_);
    if (window_ != nullptr) DestroyWindow(window_);
    user = nullptr;
  }

  void press(Long button) override { button_ = button; }
  const std::vector<ShownBox>& seen() const override { return seen_; }

  platform::WindowHandle activate() override {
    window_ = CreateWindowExW(0, L"STATIC", L"A window", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100,
                              nullptr, nullptr, nullptr, nullptr);
    SetActiveWindow(window_);
    return reinterpret_cast<platform::WindowHandle>(window_);
  }

 private:
  static void CALLBACK onTimer(HWND /*window*/, UINT /*message*/, UINT_PTR /*number*/, DWORD /*time*/) {
    HWND dialog = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), findDialog, reinterpret_cast<LPARAM>(&dialog));
    if (dialog != nullptr && IsWindowVisible(dialog)) user->answer(dialog);
  }

  /// A box that has been answered may still be there at the next look.
  void answer(HWND dialog) {
    if (dialog == answered_) return;
    answered_ = dialog;
    seen_.push_back(lookAt(dialog));
    const Long wanted = button_ != 0 ? button_ : seen_.back().defaultButton;
    HWND const button = GetDlgItem(dialog, wanted);
    if (button != nullptr && IsWindowVisible(button)) {
      PostMessageW(button, BM_CLICK, 0, 0);
    } else {
      ADD_FAILURE() << "There is no button " << wanted;
      EndDialog(dialog, 0);
    }
  }

  UINT_PTR timer_;
  Long button_ = 0;
  HWND answered_ = nullptr;
  HWND window_ = nullptr;
  std::vector<ShownBox> seen_;
};

}  // namespace

std::vector<Body> BoxUser::bodies() { return {Body::Own, Body::Fake}; }

std::unique_ptr<BoxUser> BoxUser::make() { return std::make_unique<UserByTimer>(); }

}  // namespace tessaly::tests
