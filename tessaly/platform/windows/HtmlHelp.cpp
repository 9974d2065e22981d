#include "tessaly/platform/HtmlHelp.h"

#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/windows/LateLibrary.h"

namespace tessaly::platform {
namespace {

using ShowHelp = HWND WINAPI(HWND, LPCSTR, UINT, DWORD_PTR);

/// Not every system has the viewer, and not every compiler a library to link it by.
ShowHelp* viewer() {
  static ShowHelp* const call = LateLibrary("hhctrl.ocx").function<ShowHelp>("HtmlHelpA");
  return call;
}

class WindowsHtmlHelp final : public HtmlHelp {
 public:
  WindowHandle HtmlHelpA(WindowHandle owner, const char* file, Long command, Long data) override {
    ShowHelp* const show = viewer();
    if (show == nullptr) return 0;
    return reinterpret_cast<WindowHandle>(
        show(reinterpret_cast<HWND>(owner), file, static_cast<UINT>(command), static_cast<DWORD>(data)));
  }

  bool SetWindowPos(WindowHandle window, WindowHandle after, Long x, Long y, Long width, Long height,
                    std::uint32_t flags) override {
    return ::SetWindowPos(reinterpret_cast<HWND>(window), reinterpret_cast<HWND>(after), x, y, width, height,
                          flags);
  }
};

}  // namespace

HtmlHelp& ownHtmlHelp() {
  static WindowsHtmlHelp help;
  return help;
}

}  // namespace tessaly::platform
