#include "tessaly/platform/Messages.h"

#include <windows.h>

#include <exception>

#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/windows/HandlerWindow.h"

namespace tessaly::platform {
namespace {

HWND nativeWindow(WindowHandle window) { return reinterpret_cast<HWND>(window); }

/// A walk over the windows: no exception may pass through the system, so one waits here for its end.
struct Walk {
  WindowCallback callback;
  Long& value;
  std::exception_ptr thrown;

  BOOL show(WindowHandle window) {
    try {
      return callback(window, value);
    } catch (...) {
      thrown = std::current_exception();
      return FALSE;
    }
  }
};

BOOL CALLBACK showWindow(HWND window, LPARAM walk) {
  return reinterpret_cast<Walk*>(walk)->show(reinterpret_cast<WindowHandle>(window));
}

/// A number may fill 64 bits, and its low half alone may be 0 where the number is not.
Long folded(LONG_PTR number) {
  const auto low = static_cast<Long>(number);
  return low != 0 || number == 0 ? low : 1;
}

class WindowsMessages final : public Messages {
 public:
  std::uint32_t RegisterWindowMessageA(const char* name) override { return ::RegisterWindowMessageA(name); }

  std::intptr_t SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t wParam,
                             std::intptr_t lParam) override {
    return ::SendMessageA(nativeWindow(window), message, wParam, lParam);
  }

  Long GetWindowLongA(WindowHandle window, Long index) override {
    // Indexes below 0 that hold handles are refused by the 32-bit call.
    return folded(::GetWindowLongPtrA(nativeWindow(window), index));
  }

  bool EnumWindows(WindowCallback callback, Long& value) override {
    Walk walk{callback, value, nullptr};
    const BOOL whole = ::EnumWindows(showWindow, reinterpret_cast<LPARAM>(&walk));
    if (walk.thrown) std::rethrow_exception(walk.thrown);
    return whole;
  }

  Long GetWindowTextA(WindowHandle window, char* buffer, Long size) override {
    return ::GetWindowTextA(nativeWindow(window), buffer, size);
  }

  WindowHandle CreateWindowExA(const char* title, MessageHandler& handler) override {
    return reinterpret_cast<WindowHandle>(makeHandlerWindow(title, handler));
  }

  bool DestroyWindow(WindowHandle window) override { return ::DestroyWindow(nativeWindow(window)); }

  std::uint32_t GetMessageA() override {
    MSG message{};
    while (::GetMessageA(&message, nullptr, 0, 0) > 0) {
      if (isHandlerWindow(message.hwnd)) return message.message;
      TranslateMessage(&message);
      DispatchMessageA(&message);
    }
    return kQuit;
  }

  bool PostMessageA(WindowHandle window, std::uint32_t message) override {
    DWORD process = 0;
    GetWindowThreadProcessId(nativeWindow(window), &process);
    return process == GetCurrentProcessId() && ::PostMessageA(nativeWindow(window), message, 0, 0);
  }
};

}  // namespace

Messages& ownMessages() {
  static WindowsMessages messages;
  return messages;
}

}  // namespace tessaly::platform
