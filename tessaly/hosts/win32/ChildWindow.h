#pragma once

#include <windows.h>
// COM's own headers need windows.h first.
#include <oleauto.h>

#include <memory>
#include <optional>

#include "tessaly/forms/Container.h"
#include "tessaly/forms/Guarded.h"
#include "tessaly/forms/PropertyBag.h"
#include "tessaly/forms/UserControl.h"
#include "tessaly/hosts/win32/Beginning.h"
#include "tessaly/hosts/win32/ControlKind.h"
#include "tessaly/hosts/win32/Controls.h"
#include "tessaly/hosts/win32/Density.h"
#include "tessaly/hosts/win32/Handles.h"
#include "tessaly/hosts/win32/Presses.h"
#include "tessaly/hosts/win32/Timers.h"
#include "tessaly/hosts/win32/ToolTip.h"

namespace tessaly::win32 {

/// The place of a control in a child window. It belongs to the window and holds the control; both stay until
/// the message ends in which the window has gone: `receive` holds them, and any other caller must where what
/// it calls may reach the host. Then there is no window, `control` stands, and nothing that is asked does
/// anything. The window's thread uses it. Whatever the window's messages raise goes to `onError`; the calls
/// raise to their caller.
class ChildWindow final : public Container, public std::enable_shared_from_this<ChildWindow> {
 public:
  ChildWindow(const ControlKind& kind, HWND window);
  ~ChildWindow() override;

  /// What the window of a kind of control does with a message.
  static LRESULT receive(const ControlKind& kind, HWND window, UINT message, WPARAM wParam,
                         LPARAM lParam) noexcept;

  /// That of a window, which may destroy it in any call; none for a window that is no control of this
  /// process.
  static ChildWindow* of(HWND window);

  const ControlKind& kind() const { return *kind_; }

  /// None as long as it is being made.
  void* control() const { return control_.get(); }
  Hosting& hosting() { return hosting_; }

  /// Raises what the control does.
  PropertyBag save();

  // What assistive technology asks for.
  HWND window() const { return window_; }
  bool isEnabled() const { return control_ != nullptr && kind_->isEnabled(control_.get()); }
  bool isPressed() const { return presses_.isHeld(); }
  bool isReachedByKeys() const;

  /// Whether the user could click it: it can be used and is seen, and no dialog stands before its form.
  bool isReachedByInput() const;

  /// Whether the control names itself, since the window has no text; then its name, null for want of memory.
  bool hasNameOfItsOwn() const;
  BSTR nameOfControl() const noexcept;

  /// Has it clicked when the loop comes to it, if the user still could then; false where Windows refuses.
  bool clickLater() const;

  /// Tells that the state has changed.
  void tellState() const { tell(EVENT_OBJECT_STATECHANGE); }

  /// Brings the control an event, which must be held meanwhile; nothing once the window has gone.
  template <class Event>
  void raise(const Event& event) noexcept {
    if (window_ == nullptr || userControl_ == nullptr) return;
    const Presses::Event counted(presses_);
    guarded(*userControl_, [&] { event(*userControl_); });
  }

  PixelSize size() override { return size_; }
  void setSize(PixelSize size) override;
  bool isVisible() override;

 private:
  void attach(UserControl& control) override { userControl_ = &control; }
  void detach() override { userControl_ = nullptr; }
  platform::WindowHandle hWnd() override { return reinterpret_cast<platform::WindowHandle>(window_); }
  PixelPoint GetCursorPos() override;
  PixelPoint ScreenToClient(PixelPoint point) override;
  void setCapture(bool captured) override;
  void setTimer(Timer& timer, Long milliseconds) override;
  void setCursor(std::int16_t pointer, const MouseIcon& icon) override;
  void setToolTip(std::u16string_view text) override;
  void repaint() override;
  void repaintLater() override;
  bool UserMode() override { return hosting_.userMode; }
  void PropertyChanged(std::u16string_view name) override;
  void onError(const RuntimeError& error) noexcept override;
  OLE_COLOR systemColour(Long number) override;
  Screen& screen() override;

  static LRESULT begin(const ControlKind& kind, HWND window) noexcept;
  void makeControl(const Beginning& beginning);
  void end() noexcept;

  /// Nothing where the message is for Windows itself.
  std::optional<LRESULT> handle(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> handleMouse(UINT message, WPARAM keys, LPARAM place);
  std::optional<LRESULT> handleKeys(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> handleFocus(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> handleDrawing(UINT message, WPARAM wParam);
  void makeCursor();
  bool showCursor() const;
  void endCaptureWhereHidden(const WINDOWPOS& change);
  PixelSize inside() const;
  void measure();
  void takeSize();
  void paintWindow();
  void paintOn(HDC target);
  void tick(UINT_PTR number);
  void click();
  void giveUpPress();
  void tell(DWORD change) const;
  PixelPoint middle() const { return {size_.width / 2, size_.height / 2}; }

  const ControlKind* kind_;
  HWND window_;
  Density density_;
  PixelSize size_;
  bool assignsSize_ = false;
  Hosting hosting_;
  Timers timers_;
  ToolTip toolTip_;
  std::int16_t pointer_ = 0;
  MouseIcon mouseIcon_;
  OwnedCursor icon_;
  Presses presses_{*this};
  UserControl* userControl_ = nullptr;
  std::shared_ptr<void> control_;

  /// While there is the window.
  std::shared_ptr<ChildWindow> self_;
};

}  // namespace tessaly::win32
