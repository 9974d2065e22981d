#pragma once

#include <windows.h>

#include <mutex>

namespace tessaly::platform {

/// A function of one of the system's libraries. Both are looked for when it is first asked for, so that a
/// program starts where they are missing, and the library stays. It is looked for in the program's own folder
/// and in the system's, never in the current one. The names outlive this.
template <class Function>
class LateFunction {
 public:
  LateFunction(const char* library, const char* name) : library_(library), name_(name) {}

  /// Null where it, or the library, is missing. Any thread may ask.
  Function* get() {
    std::call_once(asked_, [this] { found_ = find(); });
    return found_;
  }

 private:
  Function* find() const {
    HMODULE const library =
        LoadLibraryExA(library_, nullptr, LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (library == nullptr) return nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name_)));
  }

  const char* library_;
  const char* name_;
  std::once_flag asked_;
  Function* found_ = nullptr;
};

}  // namespace tessaly::platform
