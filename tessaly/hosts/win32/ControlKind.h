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

  /// What its default action is called, what its state always has, and its name where the window has no text.
  const wchar_t* action = L"Press";
  LONG state = 0;
  String (*name)(const void* control) = nullptr;
};

/// Registers a kind's class with its procedure; false where Windows refuses.
bool registerKind(HINSTANCE module, const ControlKind& kind, WNDPROC procedure);

}  // namespace tessaly::win32
