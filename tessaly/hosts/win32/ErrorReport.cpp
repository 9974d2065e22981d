#include "tessaly/hosts/win32/ErrorReport.h"

#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "tessaly/base/Text.h"
#include "tessaly/hosts/win32/Controls.h"

namespace tessaly::win32 {
namespace {

/// The handler in force; one that is replaced while it runs stays until it returns.
class Handler {
 public:
  void set(ErrorHandler handler) {
    auto made = handler ? std::make_shared<const ErrorHandler>(std::move(handler)) : nullptr;
    const std::lock_guard lock(mutex_);
    handler_.swap(made);
  }

  std::shared_ptr<const ErrorHandler> get() const {
    const std::lock_guard lock(mutex_);
    return handler_;
  }

 private:
  mutable std::mutex mutex_;
  std::shared_ptr<const ErrorHandler> handler_;
};

Handler& handlerInForce() {
  static Handler result;
  return result;
}

std::wstring titleOf(HWND window) {
  std::wstring title(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  title.resize(
      static_cast<std::size_t>(GetWindowTextW(window, title.data(), static_cast<int>(title.size()))));
  return title;
}

void showBox(HWND window, const RuntimeError& error) {
  static thread_local bool isShown = false;
  if (isShown) return;
  const HWND form = window != nullptr ? GetAncestor(window, GA_ROOT) : nullptr;
  const std::wstring text = toWide(fromUtf8(error.what())) + L" (" + std::to_wstring(error.number()) + L")";
  const std::wstring title = titleOf(form);
  isShown = true;
  MessageBoxW(form, text.c_str(), title.c_str(), MB_OK | MB_ICONERROR);
  isShown = false;
}

}  // namespace

void setErrorHandler(ErrorHandler handler) { handlerInForce().set(std::move(handler)); }

void report(HWND window, const RuntimeError& error) noexcept {
  try {
    if (const auto told = handlerInForce().get()) {
      (*told)(window, error);
    } else {
      showBox(window, error);
    }
  } catch (const RuntimeError&) {
    // Nobody hears of what goes wrong in telling what went wrong.
    return;
  } catch (const std::bad_alloc&) {
    return;
  }
}

}  // namespace tessaly::win32
