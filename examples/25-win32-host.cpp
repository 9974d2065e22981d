// A whole host in Windows's own windows: texts in the user's language, a picture button that asks before it
// acts, and a link.

#include <windows.h>

#include "examples/support/Print.h"
#include "tessaly/controls/URLLink.h"
#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/dialogs/modMsgBoxW.h"
#include "tessaly/hosts/win32/Controls.h"
#include "tessaly/localisation/CResources.h"

using tessaly::toWide;
namespace win32 = tessaly::win32;

namespace {

constexpr UINT kLookAgain = 20;  // milliseconds

/// Says yes to the box, as soon as it is there.
void CALLBACK answer(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*now*/) {
  const HWND box = FindWindowW(L"#32770", L"Tessaly");
  if (box == nullptr) return;
  KillTimer(nullptr, timer);
  examples::printLine(u"It asks.");
  PostMessageW(box, WM_COMMAND, IDYES, 0);
}

/// So that this program ends by itself it clicks its button and answers. A real host leaves that to its user.
void clickByItself(HWND button) {
  SetTimer(nullptr, 0, kLookAgain, answer);
  PostMessageW(button, BM_CLICK, 0, 0);
}

/// The window ends the program when it is closed.
INT_PTR CALLBACK handle(HWND /*form*/, UINT message, WPARAM /*word*/, LPARAM /*more*/) {
  if (message == WM_CLOSE) PostQuitMessage(0);
  return message == WM_CLOSE ? TRUE : FALSE;
}

}  // namespace

int main() {
  const HINSTANCE program = GetModuleHandleW(nullptr);
  win32::registerControls(program);

  tessaly::CResources texts;
  texts.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");  // whose files: the showcase's
  texts.resourcesPath(u"examples\\showcase\\languages");
  texts.SetDefaultLang();  // the user's language, or English

  const HWND form = CreateWindowExW(0, L"#32770", toWide(texts.res(70)).c_str(), WS_OVERLAPPEDWINDOW,
                                    CW_USEDEFAULT, 0, 260, 140, nullptr, nullptr, program, nullptr);
  SetWindowLongPtrW(form, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(handle));

  const HWND button = CreateWindowExW(0, win32::kPictureButtonClass, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                      20, 16, 32, 32, form, nullptr, program, nullptr);
  auto& save = *win32::pictureButtonOf(button);
  save.Picture(tessaly::LoadPicture(u"examples/contact-sheet/pictures/save.png"));
  save.backcolor(0xF0F0F0);  // black if it is not told
  save.withBorder(1);        // above 0 it answers to the pointer
  save.events.OnButtonClick = [&] {
    const auto question = texts.resWithArg(154, u"Sales.rep", u"");  // "Save the changes to Sales.rep?"
    // Yes and No with a question mark; 6 is Yes.
    if (tessaly::MsgBoxW(question, 0x24, u"") == 6) PostQuitMessage(0);
  };

  const HWND label = CreateWindowExW(0, win32::kUrlLinkClass, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 20, 64,
                                     200, 16, form, nullptr, program, nullptr);
  auto& link = *win32::urlLinkOf(label);
  link.text(texts.res(173));  // "Visit the web site"
  link.URL(u"https://www.reports.example/");

  clickByItself(button);
  ShowWindow(form, SW_SHOW);
  for (MSG message; GetMessageW(&message, nullptr, 0, 0) > 0;) {
    if (IsDialogMessageW(form, &message) == FALSE) DispatchMessageW(&message);
  }
}
