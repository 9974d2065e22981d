// Who uses a host where nobody does: clicks its button and says yes to what it asks. A host's source knows
// nothing of it; it acts only where the test's environment names it.

#include <windows.h>

#include <string>

#include "examples/support/Print.h"
#include "tessaly/hosts/win32/Controls.h"

namespace {

constexpr UINT kLookAgain = 20;  // milliseconds
constexpr int kIconOrText = 0xFFFF;

std::u16string textOf(HWND box) {
  std::wstring text(200, L'\0');
  text.resize(static_cast<std::size_t>(GetDlgItemTextW(box, kIconOrText, text.data(), 200)));
  return tessaly::fromWide(text);
}

/// As soon as there is something to click, it is clicked.
void CALLBACK act(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*now*/) {
  static bool hasClicked = false;
  const HWND form = FindWindowW(L"#32770", L"A host");
  const HWND box = FindWindowW(L"#32770", L"Tessaly");
  if (box != nullptr) {
    KillTimer(nullptr, timer);
    examples::printLine(u"It asks: ", textOf(box));
    PostMessageW(box, WM_COMMAND, IDYES, 0);
  } else if (form != nullptr && !hasClicked) {
    hasClicked = true;
    PostMessageW(FindWindowExW(form, nullptr, tessaly::win32::kPictureButtonClass, nullptr), BM_CLICK, 0, 0);
  }
}

[[maybe_unused]] const UINT_PTR begun = GetEnvironmentVariableW(L"TESSALY_USER_OF_TESTS", nullptr, 0) != 0
                                            ? SetTimer(nullptr, 0, kLookAgain, act)
                                            : 0;

}  // namespace
