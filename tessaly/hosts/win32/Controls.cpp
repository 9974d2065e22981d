#include "tessaly/hosts/win32/Controls.h"

#include <oleacc.h>

#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/hosts/win32/Beginning.h"
#include "tessaly/hosts/win32/ChildWindow.h"

namespace tessaly::win32 {
namespace {

const ControlKind kPictureButton{
    kPictureButtonClass,
    [](Container& container) -> std::shared_ptr<void> {
      return std::make_shared<transparentBitmap>(container);
    },
    ROLE_SYSTEM_PUSHBUTTON,
    [](const void* control) { return static_cast<const transparentBitmap*>(control)->enabled() != 0; }};

LRESULT CALLBACK pictureButtonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ChildWindow::receive(kPictureButton, window, message, wParam, lParam);
}

ChildWindow& found(HWND window) {
  ChildWindow* const result = ChildWindow::of(window);
  if (result == nullptr) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
  return *result;
}

}  // namespace

bool registerControls(HINSTANCE module) {
  return registerKind(module, kPictureButton, pictureButtonProcedure);
}

void unregisterControls(HINSTANCE module) { UnregisterClassW(kPictureButtonClass, module); }

transparentBitmap* pictureButtonOf(HWND window) {
  ChildWindow* const place = ChildWindow::of(window);
  const bool isOne = place != nullptr && &place->kind() == &kPictureButton;
  return isOne ? static_cast<transparentBitmap*>(place->control()) : nullptr;
}

HWND restorePictureButton(HWND parent, const RECT& bounds, int id, DWORD style, const PropertyBag& bag) {
  const Restoring restoring(bag);
  const HWND window = CreateWindowExW(0, kPictureButtonClass, L"", style | WS_CHILD, bounds.left, bounds.top,
                                      bounds.right - bounds.left, bounds.bottom - bounds.top, parent,
                                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  if (restoring.error()) throw RuntimeError(*restoring.error());
  if (window == nullptr) throw RuntimeError(RuntimeError::OutOfMemory);
  return window;
}

PropertyBag propertiesOf(HWND window) { return found(window).save(); }
Hosting& hostingOf(HWND window) { return found(window).hosting(); }

}  // namespace tessaly::win32
