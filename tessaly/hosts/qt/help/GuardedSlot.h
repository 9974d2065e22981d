#pragma once

#include <new>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/hosts/qt/ErrorBox.h"

namespace tessaly::qt {

/// A widget's method for a signal of Qt's. What it raises is told to the user in a box and ends there, since
/// no exception may pass through Qt's loop.
template <class Widget, class... Arguments>
auto guardedSlot(Widget* widget, void (Widget::*method)(Arguments...)) {
  return [widget, method](Arguments... arguments) noexcept {
    try {
      (widget->*method)(arguments...);
    } catch (const RuntimeError& error) {
      showErrorLater(*widget, error);
    } catch (const std::bad_alloc&) {
      showErrorLater(*widget, RuntimeError(RuntimeError::OutOfMemory));
    }
  };
}

}  // namespace tessaly::qt
