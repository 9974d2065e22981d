#include "tessaly/platform/windows/HandlerWindow.h"

namespace tessaly::platform {
namespace {

constexpr UINT kLastRegistered = 0xFFFF;

LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    const auto& made = *reinterpret_cast<const CREATESTRUCTA*>(lParam);
    SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made.lpCreateParams));
  }
  if (message < kFirstRegistered || message > kLastRegistered)
    return DefWindowProcA(window, message, wParam, lParam);
  auto& handler = *reinterpret_cast<MessageHandler*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  // The window may be gone when this returns.
  return handler.handle({message, wParam, lParam, 0});
}

/// The module that this code stands in: a class belongs to it, also where a host is a library itself.
HINSTANCE ownModule() {
  HMODULE module = nullptr;
  GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const char*>(&receive), &module);
  return module;
}

/// The windows' class, which a library that is unloaded must take back.
class WindowClass {
 public:
  WindowClass() {
    WNDCLASSEXA description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = receive;
    description.hInstance = module_;
    description.lpszClassName = "Tessaly message window";
    atom_ = RegisterClassExA(&description);
  }
  WindowClass(const WindowClass&) = delete;
  WindowClass& operator=(const WindowClass&) = delete;
  ~WindowClass() { UnregisterClassA(name(), module_); }

  HINSTANCE module() const { return module_; }
  ATOM atom() const { return atom_; }
  LPCSTR name() const { return MAKEINTATOM(atom_); }

 private:
  HINSTANCE module_ = ownModule();
  ATOM atom_ = 0;
};

const WindowClass& windowClass() {
  static const WindowClass result;
  return result;
}

}  // namespace

HWND makeHandlerWindow(const char* title, MessageHandler& handler) {
  // A message-only window would not be listed among the top-level ones.
  return CreateWindowExA(0, windowClass().name(), title, WS_OVERLAPPED, 0, 0, 0, 0, nullptr, nullptr,
                         windowClass().module(), &handler);
}

bool isHandlerWindow(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process == GetCurrentProcessId() && GetClassLongPtrA(window, GCW_ATOM) == windowClass().atom();
}

}  // namespace tessaly::platform
