#pragma once

#include <exception>
#include <new>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/Container.h"
#include "tessaly/forms/UserControl.h"

namespace tessaly {

/// Runs what a form's own loop has brought: what it raises goes to `onError` of the control's container and
/// ends there, since no exception may pass through a foreign loop; one that is neither a `RuntimeError` nor
/// want of memory ends the program. The container may have gone meanwhile, the control not.
template <class Event>
void guarded(UserControl& control, const Event& event) noexcept {
  try {
    event();
  } catch (const RuntimeError& error) {
    control.container().onError(error);
  } catch (const std::bad_alloc&) {
    control.container().onError(RuntimeError(RuntimeError::OutOfMemory));
  }
}

}  // namespace tessaly
