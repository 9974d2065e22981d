#include "tessaly/hosts/win32/AccessibleControl.h"

#include <oleacc.h>

#include <atomic>
#include <memory>
#include <new>

#include "tessaly/hosts/win32/ChildWindow.h"

namespace tessaly::win32 {
namespace {

struct Released {
  void operator()(IUnknown* object) const { object->Release(); }
};
using Standard = std::unique_ptr<IAccessible, Released>;

bool isSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }

VARIANT numberOf(LONG number) {
  VARIANT result{};
  result.vt = VT_I4;
  result.lVal = number;
  return result;
}

// The interface's number is asked for by __uuidof, since oleacc's import library has a symbol of the name
// IID_IAccessible that is none.

/// The window's standard object with another role and state. It may outlive the window.
class AccessibleControl final : public IAccessible {
 public:
  AccessibleControl(std::weak_ptr<ChildWindow> window, Standard standard)
      : window_(std::move(window)), standard_(std::move(standard)) {}
  AccessibleControl(const AccessibleControl&) = delete;
  AccessibleControl& operator=(const AccessibleControl&) = delete;

  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
    const auto window = window_.lock();
    if (!isSelf(child) || window == nullptr) return standard_->get_accRole(child, role);
    *role = numberOf(window->kind().role);
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
    const HRESULT result = standard_->get_accState(child, state);
    const auto window = window_.lock();
    if (FAILED(result) || !isSelf(child) || state->vt != VT_I4 || window == nullptr) return result;
    if (!window->isReachedByKeys()) state->lVal &= ~STATE_SYSTEM_FOCUSABLE;
    if (!window->isEnabled()) state->lVal |= STATE_SYSTEM_UNAVAILABLE;
    if (window->isPressed()) state->lVal |= STATE_SYSTEM_PRESSED;
    state->lVal |= window->kind().state;
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override {
    const auto window = window_.lock();
    if (!isSelf(child) || window == nullptr) return standard_->get_accDefaultAction(child, action);
    *action = SysAllocString(window->kind().action);
    return *action != nullptr ? S_OK : E_OUTOFMEMORY;
  }

  // The one who asks does not wait for what the click does, which may be a dialog that stands before what is
  // to be clicked next.
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
    const auto window = window_.lock();
    if (!isSelf(child) || window == nullptr) return standard_->accDoDefaultAction(child);
    return window->isReachedByInput() && window->clickLater() ? S_OK : E_FAIL;
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool isKnown = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch) ||
                         IsEqualIID(id, __uuidof(IAccessible));
    *object = isKnown ? static_cast<IAccessible*>(this) : nullptr;
    if (!isKnown) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  // All else is the standard object's.
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    return standard_->GetTypeInfoCount(count);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
    return standard_->GetTypeInfo(index, locale, info);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* numbers) override {
    return standard_->GetIDsOfNames(id, names, count, locale, numbers);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT* argument) override {
    return standard_->Invoke(member, id, locale, flags, parameters, result, exception, argument);
  }
  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override {
    return standard_->get_accParent(parent);
  }
  HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
    return standard_->get_accChildCount(count);
  }
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
    return standard_->get_accChild(child, object);
  }
  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
    const auto window = window_.lock();
    const bool isNamedByControl = isSelf(child) && window != nullptr && window->hasNameOfItsOwn();
    if (!isNamedByControl) return standard_->get_accName(child, name);
    *name = window->nameOfControl();
    return *name != nullptr ? S_OK : E_OUTOFMEMORY;
  }
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
    return standard_->get_accValue(child, value);
  }
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override {
    return standard_->get_accDescription(child, description);
  }
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override {
    return standard_->get_accHelp(child, help);
  }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
    return standard_->get_accHelpTopic(file, child, topic);
  }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override {
    return standard_->get_accKeyboardShortcut(child, shortcut);
  }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override { return standard_->get_accFocus(child); }
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
    return standard_->get_accSelection(children);
  }
  HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override {
    return standard_->accSelect(flags, child);
  }
  HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                        VARIANT child) override {
    return standard_->accLocation(left, top, width, height, child);
  }
  HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
    return standard_->accNavigate(direction, start, end);
  }
  HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override {
    return standard_->accHitTest(left, top, child);
  }
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override {
    return standard_->put_accName(child, name);
  }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
    return standard_->put_accValue(child, value);
  }

 private:
  ~AccessibleControl() = default;

  std::atomic<ULONG> references_{1};
  std::weak_ptr<ChildWindow> window_;
  Standard standard_;
};

Standard standardOf(HWND window) {
  void* object = nullptr;
  CreateStdAccessibleObject(window, OBJID_CLIENT, __uuidof(IAccessible), &object);
  return Standard(static_cast<IAccessible*>(object));
}

}  // namespace

LRESULT answerOf(ChildWindow& window, WPARAM wParam) noexcept {
  Standard standard = standardOf(window.window());
  if (standard == nullptr) return 0;
  const std::unique_ptr<IAccessible, Released> object(
      new (std::nothrow) AccessibleControl(window.weak_from_this(), std::move(standard)));
  return object != nullptr ? LresultFromObject(__uuidof(IAccessible), wParam, object.get()) : 0;
}

}  // namespace tessaly::win32
