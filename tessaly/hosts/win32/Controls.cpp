#include "tessaly/hosts/win32/Controls.h"

#include <oleacc.h>

#include "tessaly/controls/URLLink.h"
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

const ControlKind kUrlLink{
    kUrlLinkClass,
    [](Container& container) -> std::shared_ptr<void> { return std::make_shared<URLLink>(container); },
    ROLE_SYSTEM_LINK,
    [](const void*) { return true; },
    L"Jump",
    STATE_SYSTEM_LINKED,
    [](const void* control) { return static_cast<const URLLink*>(control)->text(); }};

LRESULT CALLBACK pictureButtonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ChildWindow::receive(kPictureButton, window, message, wParam, lParam);
}

LRESULT CALLBACK urlLinkProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return ChildWindow::receive(kUrlLink, window, message, wParam, lParam);
}

/// The control of a window where it is of a kind, and null elsewhere.
void* controlOfKind(const ControlKind& kind, HWND window) {
  ChildWindow* const place = ChildWindow::of(window);
  return place != nullptr && &place->kind() == &kind ? place->control() : nullptr;
}

HWND restore(const ControlKind& kind, HWND parent, const RECT& bounds, int id, DWORD style,
             const PropertyBag& bag) {
  const Restoring restoring(bag);
  const HWND window = CreateWindowExW(0, kind.className, L"", style | WS_CHILD, bounds.left, bounds.top,
                                      bounds.right - bounds.left, bounds.bottom - bounds.top, parent,
                                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  if (restoring.error()) throw RuntimeError(*restoring.error());
  if (window == nullptr) throw RuntimeError(RuntimeError::OutOfMemory);
  return window;
}

ChildWindow& found(HWND window) {
  ChildWindow* const result = ChildWindow::of(window);
  if (result == nullptr) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
  return *result;
}

}  // namespace

bool registerControls(HINSTANCE module) {
  return registerKind(module, kPictureButton, pictureButtonProcedure) &&
         registerKind(module, kUrlLink, urlLinkProcedure);
}

void unregisterControls(HINSTANCE module) {
  UnregisterClassW(kPictureButtonClass, module);
  UnregisterClassW(kUrlLinkClass, module);
}

transparentBitmap* pictureButtonOf(HWND window) {
  return static_cast<transparentBitmap*>(controlOfKind(kPictureButton, window));
}

URLLink* urlLinkOf(HWND window) { return static_cast<URLLink*>(controlOfKind(kUrlLink, window)); }

HWND restorePictureButton(HWND parent, const RECT& bounds, int id, DWORD style, const PropertyBag& bag) {
  return restore(kPictureButton, parent, bounds, id, style, bag);
}

HWND restoreUrlLink(HWND parent, const RECT& bounds, int id, DWORD style, const PropertyBag& bag) {
  return restore(kUrlLink, parent, bounds, id, style, bag);
}

PropertyBag propertiesOf(HWND window) { return found(window).save(); }
Hosting& hostingOf(HWND window) { return found(window).hosting(); }

}  // namespace tessaly::win32
