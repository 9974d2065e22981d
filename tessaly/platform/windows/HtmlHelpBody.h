#pragma once

#include "tessaly/platform/HtmlHelp.h"
#include "tessaly/platform/windows/LateFunction.h"

namespace tessaly::platform {

/// Shows help in the system's viewer. Not every system has it, and not every compiler a library to link it
/// by.
class WindowsHtmlHelp final : public HtmlHelp {
 public:
  /// The library that the viewer is in, by a name that outlives this.
  explicit WindowsHtmlHelp(const char* library) : viewer_(library, "HtmlHelpA") {}

  WindowHandle HtmlHelpA(WindowHandle owner, const char* file, Long command, Long data) override;
  bool SetWindowPos(WindowHandle window, WindowHandle after, Long x, Long y, Long width, Long height,
                    std::uint32_t flags) override;

 private:
  LateFunction<HWND WINAPI(HWND, LPCSTR, UINT, DWORD_PTR)> viewer_;
};

}  // namespace tessaly::platform
