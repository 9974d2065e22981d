#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "tessaly/forms/Colour.h"
#include "tessaly/forms/Container.h"
#include "tessaly/forms/Scale.h"
#include "tessaly/forms/Surface.h"
#include "tessaly/forms/UserControlEvents.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

class Label;
class Line;
class PropertyBag;

/// A control's own surface: what the control draws on and measures, and the door by which its container
/// brings it events. It belongs to the control. One thread uses it.
class TESSALY_DESKTOP_API UserControl {
 public:
  /// Introduces itself to the container. Both must outlive it; a container that goes before it says so with
  /// `leave`. It begins in pixels, with the system's button face as BackColor.
  UserControl(Container& container, UserControlEvents& control);
  UserControl(const UserControl&) = delete;
  UserControl& operator=(const UserControl&) = delete;
  virtual ~UserControl();

  /// Clears the persistent surface to BackColor, and has it shown when there is time.
  virtual void Cls();

  /// Shows the control as it is now; within Paint it comes to nothing, since the control is shown anyway.
  virtual void Refresh();

  /// Whether there is a persistent surface, from which the control is shown; no Paint comes any more then.
  /// Error 7 where there is no memory for it.
  virtual Boolean AutoRedraw() const;
  virtual void AutoRedraw(Boolean on);

  /// The unit of ScaleWidth, ScaleHeight and the pointer's place: 1 twips, 3 pixels; error 380 for any other.
  virtual std::int16_t ScaleMode() const;
  virtual void ScaleMode(std::int16_t mode);
  virtual double ScaleWidth() const;
  virtual double ScaleHeight() const;

  /// The outer size in twips. An assignment that changes it raises Resize before it returns. Error 380 below
  /// 0 or above 32767 pixels.
  virtual double Width() const;
  virtual void Width(double twips);
  virtual double Height() const;
  virtual void Height(double twips);

  /// Takes effect at the next `Cls`.
  virtual OLE_COLOR BackColor() const;
  virtual void BackColor(OLE_COLOR colour);

  /// The surface for platform calls; 0 where there is none or it has no pixels.
  virtual platform::DeviceContext hDC() const;
  virtual platform::WindowHandle hWnd() const;

  /// The pointer over the control: 0 the usual one, 99 `MouseIcon`.
  virtual std::int16_t MousePointer() const;
  virtual void MousePointer(std::int16_t pointer);
  virtual void setMouseIcon(const MouseIcon& icon);

  /// The notice to the container that a property has changed.
  virtual void PropertyChanged(std::u16string_view name);

  /// The container of this moment: one that does nothing where it has gone.
  Container& container() const { return *container_; }

  // For the container: what its form does with the control. What an event raises comes out of these calls.

  /// A new control's beginning: InitProperties, then Resize.
  void create();

  /// A stored control's beginning: ReadProperties, then Resize.
  void restore(const PropertyBag& bag);
  void save(PropertyBag& bag);

  /// The container has another size now: raises Resize. Error 7 where there is no memory for the surface, and
  /// then no Resize comes.
  void resized();

  /// Raise the event on what lies under the pointer, which is told in pixels, and capture the mouse from a
  /// button's press until the last one is up.
  void mouseDown(MouseState button, MouseState shift, PixelPoint point);
  void mouseMove(MouseState buttons, MouseState shift, PixelPoint point);
  void mouseUp(MouseState button, MouseState shift, PixelPoint point);

  /// The container has ended the capture without a release, so no button is held any more.
  void captureLost();

  /// Raises Paint where there is no persistent surface.
  void prepareToShow();

  /// The surface without lines and labels, to be shown; none where it is BackColor alone. Its size is another
  /// than the container's where there was no memory for that.
  platform::PixelView surface() const;
  std::span<Line* const> lines() const { return lines_; }
  std::span<Label* const> labels() const { return labels_; }

  /// The surface with the visible lines above it; labels are the container's to draw. Error 7 where it would
  /// take more than 67108864 pixels.
  PictureReference picture();

  /// The same on pixels that there are already, of the container's size.
  void drawOn(platform::PixelView view) const;

  /// The container goes: from now on there is nobody to tell.
  void leave();

  // For the engine's own objects.
  Scale scale() const { return scale_; }

  /// Has the control shown again when there is time, but for while it paints: then it is shown anyway.
  void repaintLater();
  void add(Line& line);
  void remove(Line& line);
  void add(Label& label);
  void remove(Label& label);

 private:
  float place(Long pixels) const;
  void fitSurface(bool isWanted);
  Label* labelAt(PixelPoint point) const;

  Container* container_;
  UserControlEvents* control_;
  Surface surface_;
  Scale scale_{Scale::kPixels};
  OLE_COLOR backColor_ = kButtonFace;
  Boolean autoRedraw_;
  bool isPainting_ = false;
  std::int16_t mousePointer_ = 0;
  MouseIcon mouseIcon_;
  MouseState heldButtons_ = 0;
  std::vector<Line*> lines_;
  std::vector<Label*> labels_;
};

}  // namespace tessaly
