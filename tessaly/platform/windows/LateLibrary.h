#pragma once

#include <windows.h>

namespace tessaly::platform {

/// A library of the system's that is loaded when it is first needed, and stays. It is looked for in the
/// program's own folder and in the system's, never in the current one.
class LateLibrary {
 public:
  explicit LateLibrary(const char* name)
      : library_(LoadLibraryExA(name, nullptr,
                                LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32)) {}

  /// One of its functions; null where it, or the library, is missing.
  template <class Function>
  Function* function(const char* name) const {
    if (library_ == nullptr) return nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library_, name)));
  }

 private:
  HMODULE library_;
};

}  // namespace tessaly::platform
