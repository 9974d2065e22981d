// How a control comes with its window and goes with it, and how one is found from the other.

#include "tessaly/hosts/win32/Beginning.h"
#include "tessaly/hosts/win32/ChildWindow.h"
#include "tessaly/hosts/win32/ErrorReport.h"
#include "tessaly/hosts/win32/Pointers.h"

namespace tessaly::win32 {
namespace {

constexpr wchar_t kProperty[] = L"Tessaly control";
constexpr LRESULT kNoWindow = -1;
constexpr std::int16_t kArrowPointer = 1;

bool isOfThisProcess(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process == GetCurrentProcessId();
}

ChildWindow* storedIn(HWND window) { return reinterpret_cast<ChildWindow*>(GetWindowLongPtrW(window, 0)); }

}  // namespace

bool registerKind(HINSTANCE module, const ControlKind& kind, WNDPROC procedure) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  // A dialog's template may stand in another module than its program.
  description.style = CS_GLOBALCLASS;
  description.lpfnWndProc = procedure;
  description.cbWndExtra = sizeof(ChildWindow*);
  description.hInstance = module;
  description.hCursor = systemCursor(kArrowPointer);
  description.lpszClassName = kind.className;
  return RegisterClassExW(&description) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

ChildWindow* ChildWindow::of(HWND window) {
  return isOfThisProcess(window) ? static_cast<ChildWindow*>(GetPropW(window, kProperty)) : nullptr;
}

LRESULT ChildWindow::receive(const ControlKind& kind, HWND window, UINT message, WPARAM wParam,
                             LPARAM lParam) noexcept {
  if (message == WM_CREATE) return begin(kind, window);
  ChildWindow* const found = storedIn(window);
  if (found == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  const auto held = found->shared_from_this();
  if (message == WM_NCDESTROY) found->end();
  const auto result = found->handle(message, wParam, lParam);
  return result ? *result : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT ChildWindow::begin(const ControlKind& kind, HWND window) noexcept {
  Beginning beginning;
  try {
    const auto made = std::make_shared<ChildWindow>(kind, window);
    made->self_ = made;
    SetPropW(window, kProperty, made.get());
    SetWindowLongPtrW(window, 0, reinterpret_cast<LONG_PTR>(made.get()));
    made->makeControl(beginning);
    return made->window_ != nullptr ? 0 : kNoWindow;
  } catch (const RuntimeError& error) {
    beginning.fail(error);
  } catch (const std::bad_alloc&) {
    beginning.fail(RuntimeError(RuntimeError::OutOfMemory));
  }
  if (ChildWindow* const made = storedIn(window)) made->end();
  return kNoWindow;
}

void ChildWindow::makeControl(const Beginning& beginning) {
  measure();
  control_ = kind_->make(*this);
  if (beginning.bag() != nullptr) {
    userControl_->restore(*beginning.bag());
  } else {
    userControl_->create();
  }
}

void ChildWindow::end() noexcept {
  if (window_ == nullptr) return;
  timers_.stopAll(window_);
  toolTip_.close();
  RemovePropW(window_, kProperty);
  SetWindowLongPtrW(window_, 0, 0);
  window_ = nullptr;
  self_.reset();
}

}  // namespace tessaly::win32
