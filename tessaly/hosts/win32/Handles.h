#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace tessaly::win32 {

/// Ends a handle by the call that belongs to it, for `std::unique_ptr`.
template <auto End>
struct EndedBy {
  template <class Handle>
  void operator()(Handle handle) const {
    End(handle);
  }
};

template <class Handle, auto End>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, EndedBy<End>>;

using OwnedBitmap = Owned<HBITMAP, &DeleteObject>;
using OwnedBrush = Owned<HBRUSH, &DeleteObject>;
using OwnedFont = Owned<HFONT, &DeleteObject>;
using OwnedContext = Owned<HDC, &DeleteDC>;
using OwnedCursor = Owned<HICON, &DestroyIcon>;
using OwnedWindow = Owned<HWND, &DestroyWindow>;

/// What is selected into a context for a while.
class Selected {
 public:
  Selected(HDC context, HGDIOBJ object) : context_(context), before_(SelectObject(context, object)) {}
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;
  ~Selected() { SelectObject(context_, before_); }

 private:
  HDC context_;
  HGDIOBJ before_;
};

}  // namespace tessaly::win32
