#include "tessaly/platform/Shell.h"

#include "tessaly/base/RuntimeError.h"
#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/windows/ShellBody.h"

namespace tessaly::platform {

std::intptr_t WindowsShell::ShellExecuteA(WindowHandle owner, const char* operation, const char* file,
                                          const char* parameters, const char* directory, Long show) {
  auto* const open = execute_.get();
  if (open == nullptr) throw RuntimeError(RuntimeError::EntryPointNotFound);
  return reinterpret_cast<std::intptr_t>(
      open(reinterpret_cast<HWND>(owner), operation, file, parameters, directory, show));
}

Shell& ownShell() {
  static WindowsShell shell("shell32.dll");
  return shell;
}

}  // namespace tessaly::platform
