// A whole host in Windows's own windows: texts in the user's language, and a picture button that asks before
// it acts.

#include <windows.h>

#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/dialogs/modMsgBoxW.h"
#include "tessaly/hosts/win32/Controls.h"
#include "tessaly/localisation/CResources.h"

INT_PTR CALLBACK handle(HWND, UINT message, WPARAM, LPARAM) {
  if (message == WM_CLOSE) PostQuitMessage(0);
  return message == WM_CLOSE ? TRUE : FALSE;
}

int main() {
  const HINSTANCE program = GetModuleHandleW(nullptr);
  tessaly::win32::registerControls(program);

  tessaly::CResources texts;
  texts.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");  // whose files: the showcase's
  texts.resourcesPath(u"examples\\showcase\\languages");
  texts.SetDefaultLang();  // the user's language, or English

  const HWND form = CreateWindowExW(0, L"#32770", L"A host", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, 0, 260, 110,
                                    nullptr, nullptr, program, nullptr);
  SetWindowLongPtrW(form, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(handle));
  const HWND button =
      CreateWindowExW(0, tessaly::win32::kPictureButtonClass, L"&Save", WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                      20, 16, 34, 34, form, nullptr, program, nullptr);
  auto& save = *tessaly::win32::pictureButtonOf(button);
  save.Picture(tessaly::LoadPicture(u"examples/contact-sheet/pictures/save.png"));
  save.backcolor(0xF0F0F0);  // black if it is not told
  save.withBorder(1);        // above 0 it answers to the pointer
  save.events.OnButtonClick = [&] {
    const auto question = texts.resWithArg(154, u"Sales.rep", u"");      // "Save the changes to Sales.rep?"
    if (tessaly::MsgBoxW(question, 0x24, u"") == 6) PostQuitMessage(0);  // asks Yes or No; 6 is Yes
  };

  ShowWindow(form, SW_SHOW);
  for (MSG message; GetMessageW(&message, nullptr, 0, 0) > 0;) {
    if (IsDialogMessageW(form, &message) == FALSE) DispatchMessageW(&message);
  }
}
