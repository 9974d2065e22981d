#include "tessaly/platform/HtmlHelp.h"

#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/windows/HtmlHelpBody.h"

namespace tessaly::platform {

WindowHandle WindowsHtmlHelp::HtmlHelpA(WindowHandle owner, const char* file, Long command, Long data) {
  auto* const show = viewer_.get();
  if (show == nullptr) return 0;
  return reinterpret_cast<WindowHandle>(
      show(reinterpret_cast<HWND>(owner), file, static_cast<UINT>(command), static_cast<DWORD>(data)));
}

bool WindowsHtmlHelp::SetWindowPos(WindowHandle window, WindowHandle after, Long x, Long y, Long width,
                                   Long height, std::uint32_t flags) {
  return ::SetWindowPos(reinterpret_cast<HWND>(window), reinterpret_cast<HWND>(after), x, y, width, height,
                        flags);
}

HtmlHelp& ownHtmlHelp() {
  static WindowsHtmlHelp help("hhctrl.ocx");
  return help;
}

}  // namespace tessaly::platform
