#pragma once

#include <windows.h>
// COM's own headers need windows.h first.
#include <oleauto.h>

#include <memory>
#include <new>
#include <string_view>

#include "tessaly/base/Types.h"

/// COM by RAII: an apartment, an interface pointer, a text.
namespace tessaly::platform {

/// Holds COM open on this thread, so that the host need not; ends on the thread on which it began.
class ComApartment {
 public:
  ComApartment() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;
  ~ComApartment() {
    // A thread that the host has opened otherwise serves as well, and is not ours to close.
    if (SUCCEEDED(result_)) CoUninitialize();
  }

 private:
  HRESULT result_;
};

struct ReleaseInterface {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using ComPtr = std::unique_ptr<Interface, ReleaseInterface>;

/// Takes the interface that a call hands out: `ComPtr<I> p = taken<I>([&](I** out) { return f(out); })`.
template <class Interface, class Call>
ComPtr<Interface> taken(Call call) {
  Interface* object = nullptr;
  const HRESULT result = call(&object);
  ComPtr<Interface> owned(object);
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  return result == S_OK ? std::move(owned) : nullptr;
}

/// A text of COM's.
class ComText {
 public:
  ComText() = default;
  explicit ComText(std::u16string_view text)
      : text_(SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()),
                                static_cast<UINT>(text.size()))) {
    if (!text_) throw std::bad_alloc();
  }
  ComText(const ComText&) = delete;
  ComText& operator=(const ComText&) = delete;
  ~ComText() { SysFreeString(text_); }

  BSTR get() const { return text_; }
  BSTR* out() { return &text_; }
  std::u16string_view view() const { return {reinterpret_cast<const char16_t*>(text_), SysStringLen(text_)}; }

 private:
  BSTR text_ = nullptr;
};

}  // namespace tessaly::platform
