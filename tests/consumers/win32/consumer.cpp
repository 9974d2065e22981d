// A Windows host that takes the library as its users do.

#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <vector>

#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/hosts/win32/Controls.h"

int main() {
  const HINSTANCE program = GetModuleHandleW(nullptr);
  if (!tessaly::win32::registerControls(program)) return 1;
  const HWND form = CreateWindowExW(0, L"#32770", L"A host", WS_OVERLAPPEDWINDOW, 0, 0, 240, 120, nullptr,
                                    nullptr, program, nullptr);
  const HWND window = CreateWindowExW(0, tessaly::win32::kPictureButtonClass, L"&Open", WS_CHILD | WS_VISIBLE,
                                      0, 0, 100, 100, form, nullptr, program, nullptr);
  tessaly::transparentBitmap* const button = tessaly::win32::pictureButtonOf(window);
  if (button == nullptr) return 2;
  button->withBorder(2);
  button->Picture(std::make_shared<tessaly::Picture>(tessaly::PixelSize{44, 28},
                                                     std::vector<std::uint32_t>(44 * 28, 0xFFFF0000)));
  button->stretch(tessaly::True);
  button->events.OnButtonClick = [window] {
    RECT inner{};
    GetClientRect(window, &inner);
    std::printf("button %ld by %ld is clicked\n", inner.right, inner.bottom);
  };
  SendMessageW(window, BM_CLICK, 0, 0);
  DestroyWindow(form);
  return 0;
}
