#pragma once

#include <windows.h>

#include <string>
#include <utility>

#include "tessaly/base/Types.h"

namespace tessaly::zplogger {

/// A file or an event that is closed with its owner.
class Handle {
 public:
  explicit Handle(HANDLE handle = INVALID_HANDLE_VALUE) : handle_(handle) {}
  Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~Handle() {
    if (isOpen()) CloseHandle(handle_);
  }

  HANDLE get() const { return handle_; }
  bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE && handle_ != nullptr; }

 private:
  HANDLE handle_;
};

/// Wide text as the platform's calls take it.
const wchar_t* wide(const String& text);

/// The last error in words.
std::string lastError();

}  // namespace tessaly::zplogger
