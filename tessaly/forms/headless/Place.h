#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "tessaly/forms/Container.h"
#include "tessaly/forms/PropertyBag.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly::headless {

class Form;

/// A control's place on a form without a display: what a user does to this one control, and what would be
/// seen of it. It lasts as long as the control stands on the form.
class TESSALY_DESKTOP_API Place final : public Container, public std::enable_shared_from_this<Place> {
 public:
  Place(Form& form, PixelPoint corner, PixelSize size, Long number);
  ~Place() override;

  /// Gives the control another size, as one who drags its edge: where it changes, the control gets Resize,
  /// and what that raises goes to the form's errors. Error 380 for a side below 0 or above 32767 pixels.
  void drag(PixelSize size);

  /// Shows or hides the control's own window; it is shown at first. Hiding it ends its capture.
  void show(bool visible);

  /// What is seen now: the surface, or BackColor where there is none, with the visible lines above it. Labels
  /// are not drawn. A control without a surface of its own gets Paint before; what that raises goes to the
  /// form's errors.
  PictureReference picture();

  /// The control's properties. What the control raises comes out of the call.
  PropertyBag save();

  /// Which properties have changed, oldest first.
  const std::vector<String>& changedProperties() const { return changedProperties_; }

  /// How often the control had itself shown at once, and how often when there is time.
  int repaints() const { return repaints_; }
  int laterRepaints() const { return laterRepaints_; }

  const String& toolTip() const { return toolTip_; }

  /// The pointer over the control, 0 the usual one and 99 the icon.
  std::int16_t cursor() const { return cursor_; }
  const MouseIcon& mouseIcon() const { return mouseIcon_; }

  /// Whether the control gets the mouse's events from everywhere.
  bool hasCapture() const;

  PixelSize size() override { return size_; }
  bool isVisible() override { return isVisible_; }

  /// The control's surface, to raise an event by hand. Error 9 where the control has made none.
  UserControl& userControl() const;

 private:
  friend class Form;

  void attach(UserControl& control) override { userControl_ = &control; }
  void detach() override { userControl_ = nullptr; }
  void setSize(PixelSize size) override;
  platform::WindowHandle hWnd() override { return number_; }
  PixelPoint GetCursorPos() override;
  PixelPoint ScreenToClient(PixelPoint point) override;
  void setCapture(bool captured) override;
  void setTimer(Timer& timer, Long milliseconds) override;
  void setCursor(std::int16_t pointer, const MouseIcon& icon) override;
  void setToolTip(std::u16string_view text) override { toolTip_ = text; }
  void repaint() override { ++repaints_; }
  void repaintLater() override { ++laterRepaints_; }
  bool UserMode() override;
  void PropertyChanged(std::u16string_view name) override { changedProperties_.emplace_back(name); }
  void onError(const RuntimeError& error) noexcept override;
  OLE_COLOR systemColour(Long number) override;
  Screen& screen() override;
  Toolbox& toolbox() override;

  bool contains(PixelPoint pointOfForm) const;
  void leaveForm();
  void raise(const std::function<void(UserControl&)>& event);

  /// None once the control has been removed, or the form has gone.
  Form* form_;

  /// The form's, which hears of a control's errors also after its removal.
  std::shared_ptr<std::vector<RuntimeError>> errors_;

  /// The form's, once the control has left it.
  std::shared_ptr<Screen> screenOfForm_;
  PixelPoint corner_;
  PixelSize size_;
  Long number_;
  UserControl* userControl_ = nullptr;
  bool isVisible_ = true;
  std::vector<String> changedProperties_;
  int repaints_ = 0;
  int laterRepaints_ = 0;
  String toolTip_;
  std::int16_t cursor_ = 0;
  MouseIcon mouseIcon_;
  std::shared_ptr<void> control_;
};

}  // namespace tessaly::headless
