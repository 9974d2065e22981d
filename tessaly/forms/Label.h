#pragma once

#include <functional>
#include <string_view>

#include "tessaly/forms/Colour.h"
#include "tessaly/forms/UserControlEvents.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

class UserControl;

/// The face of a label's text.
struct Font {
  String name = u"MS Sans Serif";
  double points = 8.25;
  Long weight = 400;
  bool isUnderlined = false;

  bool operator==(const Font&) const = default;
};

/// A text above a control's surface, in the control's scale, which takes the mouse's presses where it lies.
/// The container draws it. A change has the control painted again when there is time. One thread uses it.
class TESSALY_DESKTOP_API Label {
 public:
  /// The control must outlive it.
  explicit Label(UserControl& parent);
  Label(const Label&) = delete;
  Label& operator=(const Label&) = delete;
  virtual ~Label();

  virtual String Caption() const;
  virtual void Caption(std::u16string_view text);

  /// 0 left, 1 right, 2 centre; any other is kept and shown as 0.
  virtual Long Alignment() const;
  virtual void Alignment(Long alignment);

  /// What the container shows when the pointer rests on the control.
  virtual String ToolTipText() const;
  virtual void ToolTipText(std::u16string_view text);

  virtual OLE_COLOR ForeColor() const;
  virtual void ForeColor(OLE_COLOR colour);
  virtual OLE_COLOR BackColor() const;
  virtual void BackColor(OLE_COLOR colour);
  virtual const Font& font() const;
  virtual void font(const Font& font);

  /// Place and size; error 380 for a negative width or height, and for what is infinite or no number.
  virtual double Left() const;
  virtual void Left(double left);
  virtual double Top() const;
  virtual void Top(double top);
  virtual double Width() const;
  virtual void Width(double width);
  virtual double Height() const;
  virtual void Height(double height);

  /// All four at once, or none where one of them is an error.
  virtual void Move(double left, double top, double width, double height);

  /// What a press on the label does.
  std::function<void(MouseState button, MouseState shift, float x, float y)> onMouseDown;

  /// For the surface: whether a point of the control lies on the label, and a press at it.
  bool covers(double x, double y) const;
  void press(MouseState button, MouseState shift, float x, float y) const;

 private:
  template <class Value>
  void change(Value& field, Value value);

  UserControl* parent_;
  String caption_;
  String toolTipText_;
  Font font_;
  Long alignment_ = 0;
  OLE_COLOR foreColor_ = kButtonText;
  OLE_COLOR backColor_ = kButtonFace;
  double left_ = 0;
  double top_ = 0;
  double width_ = 0;
  double height_ = 0;
};

}  // namespace tessaly
