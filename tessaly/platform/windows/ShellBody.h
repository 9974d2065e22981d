#pragma once

#include "tessaly/platform/Shell.h"
#include "tessaly/platform/windows/LateFunction.h"

namespace tessaly::platform {

/// Opens by the system's shell. That it is missing is an error of the call. Any thread may call.
class WindowsShell final : public Shell {
 public:
  /// The library that the shell is in, by a name that outlives this.
  explicit WindowsShell(const char* library) : execute_(library, "ShellExecuteA") {}

  std::intptr_t ShellExecuteA(WindowHandle owner, const char* operation, const char* file,
                              const char* parameters, const char* directory, Long show) override;

 private:
  LateFunction<HINSTANCE WINAPI(HWND, LPCSTR, LPCSTR, LPCSTR, LPCSTR, INT)> execute_;
};

}  // namespace tessaly::platform
