#pragma once

#include <windows.h>

#include <memory>

#include "tessaly/forms/Container.h"

namespace tessaly::win32 {

/// What a class of windows makes of each, and what it tells of it.
struct ControlKind {
  const wchar_t* className;
  std::shared_ptr<void> (*make)(Container& container);

  /// For assistive technology: the number of its role, and whether it can be used.
  LONG role;
  bool (*isEnabled)(const void* control);
};

/// Registers a kind's class with its procedure; false where Windows refuses.
bool registerKind(HINSTANCE module, const ControlKind& kind, WNDPROC procedure);

}  // namespace tessaly::win32
