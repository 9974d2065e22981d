// A Windows host with a picture button: it registers the class once, makes windows of it as of any other
// class, and finds the object behind each.

#include <windows.h>

#include "examples/support/Print.h"
#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/hosts/win32/Controls.h"

using examples::printLine;
using tessaly::LoadPicture;

int main() {
  const HINSTANCE program = GetModuleHandleW(nullptr);
  tessaly::win32::registerControls(program);

  // Any window is a form; this one is a dialog without a template.
  const HWND form = CreateWindowExW(0, L"#32770", L"A host", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT,
                                    CW_USEDEFAULT, 240, 120, nullptr, nullptr, program, nullptr);

  // Its text is its name for assistive technology. With WS_TABSTOP Tab reaches it, and Space and Return press
  // it.
  const HWND window =
      CreateWindowExW(0, tessaly::win32::kPictureButtonClass, L"&Open", WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                      20, 16, 48, 48, form, nullptr, program, nullptr);

  tessaly::transparentBitmap& open = *tessaly::win32::pictureButtonOf(window);
  open.backcolor(0xF0D8B0);
  open.Picture(LoadPicture(u"examples/contact-sheet/pictures/open.png"));
  open.AddBitmap(LoadPicture(u"examples/contact-sheet/pictures/new-16.png"), 8, 0xFF00FF);
  open.withBorder(1);
  open.events.OnButtonSelected = [] { printLine(u"selected"); };
  open.events.OnButtonClick = [form] {
    printLine(u"clicked");
    DestroyWindow(form);
    PostQuitMessage(0);
  };

  ShowWindow(form, SW_SHOW);
  // So that this program ends by itself it clicks its button. A real host leaves that to its user.
  PostMessageW(window, BM_CLICK, 0, 0);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (IsDialogMessageW(form, &message) != FALSE) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}
