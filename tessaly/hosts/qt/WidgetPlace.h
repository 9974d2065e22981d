#pragma once

#include <memory>

#include "tessaly/forms/Container.h"
#include "tessaly/forms/Guarded.h"
#include "tessaly/forms/UserControl.h"
#include "tessaly/hosts/qt/Pointer.h"
#include "tessaly/hosts/qt/Presses.h"
#include "tessaly/hosts/qt/Timers.h"
#include "tessaly/hosts/qt/WidgetContainer.h"

namespace tessaly::qt {

/// A control's place in its widget: what the control asks of the form, and what the form brings it. It holds
/// the control, and whatever it brings holds it, since the widget may go meanwhile.
class WidgetPlace final : public Container, public std::enable_shared_from_this<WidgetPlace> {
 public:
  explicit WidgetPlace(WidgetContainer& widget) : widget_(&widget), timers_(widget) {}
  ~WidgetPlace() override { control_.reset(); }

  void hold(std::shared_ptr<void> control) { control_ = std::move(control); }

  /// The widget goes: the control has no form any more.
  void leave();

  /// Brings the control an event; what it raises ends here. Nothing where there is no control.
  template <class Event>
  void raise(const Event& event) noexcept {
    const auto held = shared_from_this();
    const Presses::Event counted(presses_);
    if (userControl_ != nullptr) guarded(*userControl_, [&] { event(*userControl_); });
  }

  WidgetContainer& widget() const { return *widget_; }

  /// The control's surface; error 9 where the control has made none.
  UserControl& userControl() const;

  // What the widget is told.
  void widgetResized(PixelSize size);
  void paint();
  void pressed(MouseState button, MouseState shift, PixelPoint point);
  void moved(MouseState buttons, MouseState shift, PixelPoint point);
  void released(MouseState button, MouseState shift, PixelPoint point);
  void tick(int timerId);

  /// A press and a release on the control, with the pointer taken to be in its middle; a press that the mouse
  /// holds goes before.
  void pressKey();
  void releaseKey();
  bool isPressHeld() const { return presses_.isHeld(); }

  /// Nobody tells any more of the release of a key that is held; of any key or button.
  void keyLost() { presses_.keyLost(); }
  void inputLost() { presses_.allLost(); }

  /// Whatever a key made of the pointer, it is where it is.
  void endKeyPointer() { presses_.forgetKeyPointer(); }

  Pointer pointer;
  WidgetContainer::ErrorHandler errorHandler;
  bool runs = true;

  void attach(UserControl& control) override { userControl_ = &control; }
  void detach() override { userControl_ = nullptr; }
  PixelSize size() override { return size_; }
  void setSize(PixelSize size) override;
  platform::WindowHandle hWnd() override;
  bool isVisible() override { return !widget_->isHidden(); }
  PixelPoint GetCursorPos() override;
  PixelPoint ScreenToClient(PixelPoint point) override;
  void setCapture(bool captured) override { presses_.setCaptured(captured); }
  void setTimer(Timer& timer, Long milliseconds) override;
  void setCursor(std::int16_t pointer, const MouseIcon& icon) override;
  void setToolTip(std::u16string_view text) override;
  void repaint() override;
  void repaintLater() override { widget_->update(); }
  bool UserMode() override { return runs; }
  void PropertyChanged(std::u16string_view name) override;
  void onError(const RuntimeError& error) noexcept override;
  OLE_COLOR systemColour(Long number) override;
  Screen& screen() override;

 private:
  PixelPoint middle() const { return {size_.width / 2, size_.height / 2}; }

  WidgetContainer* widget_;
  UserControl* userControl_ = nullptr;

  /// None before the widget is shown, which has had no size until then.
  PixelSize size_;
  bool isSettingSize_ = false;
  bool isPainting_ = false;

  Presses presses_{*this};
  Timers timers_;
  std::shared_ptr<void> control_;
};

}  // namespace tessaly::qt
