#pragma once

#include "tessaly/forms/Colour.h"
#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/Drawing.h"

namespace tessaly {

class UserControl;

/// A straight line above a control's surface, in the control's scale, hidden at first. It is drawn from end
/// to end, both included, and BorderWidth pixels wide across the direction in which it is longer. It grows
/// from the middle; where a wide line would leave the surface it is moved inside, so that one along an edge
/// shows its whole width. A change of a visible line has the control painted again when there is time. One
/// thread uses it.
class TESSALY_DESKTOP_API Line {
 public:
  /// The control must outlive it.
  explicit Line(UserControl& parent);
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;
  virtual ~Line();

  /// The ends. Error 380 for what is infinite or no number.
  virtual double X1() const;
  virtual void X1(double x);
  virtual double Y1() const;
  virtual void Y1(double y);
  virtual double X2() const;
  virtual void X2(double x);
  virtual double Y2() const;
  virtual void Y2(double y);

  virtual OLE_COLOR BorderColor() const;
  virtual void BorderColor(OLE_COLOR colour);

  /// In pixels; 1 at first. Error 380 below 1.
  virtual std::int16_t BorderWidth() const;
  virtual void BorderWidth(std::int16_t width);

  virtual Boolean Visible() const;
  virtual void Visible(Boolean visible);

  /// Draws the line on pixels, whether it is visible or not.
  void drawOn(platform::PixelView pixels) const;

 private:
  void place(double& field, double measure);
  template <class Value>
  void change(Value& field, Value value);

  UserControl* parent_;
  double x1_ = 0;
  double y1_ = 0;
  double x2_ = 0;
  double y2_ = 0;
  OLE_COLOR borderColor_ = 0;
  std::int16_t borderWidth_ = 1;
  Boolean visible_;
};

}  // namespace tessaly
