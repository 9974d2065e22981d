#include "tessaly/platform/Shell.h"

#include "tessaly/base/RuntimeError.h"
#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/windows/LateLibrary.h"

namespace tessaly::platform {
namespace {

using Execute = HINSTANCE WINAPI(HWND, LPCSTR, LPCSTR, LPCSTR, LPCSTR, INT);

/// Loaded late, so that a program starts where it is missing, and its want becomes an error of the call.
Execute* execute() {
  static Execute* const call = LateLibrary("shell32.dll").function<Execute>("ShellExecuteA");
  return call;
}

class WindowsShell final : public Shell {
 public:
  std::intptr_t ShellExecuteA(WindowHandle owner, const char* operation, const char* file,
                              const char* parameters, const char* directory, Long show) override {
    Execute* const open = execute();
    if (open == nullptr) throw RuntimeError(RuntimeError::EntryPointNotFound);
    return reinterpret_cast<std::intptr_t>(
        open(reinterpret_cast<HWND>(owner), operation, file, parameters, directory, show));
  }
};

}  // namespace

Shell& ownShell() {
  static WindowsShell shell;
  return shell;
}

}  // namespace tessaly::platform
