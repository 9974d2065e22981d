#pragma once

#include <QPoint>

class QWidget;

namespace tessaly::qt {

/// Where the pointer is, as a widget can know it. Where no program is told of a pointer outside of its own
/// windows, as on Wayland, the widget's own events tell it, and after a leave event it is outside.
class Pointer {
 public:
  Pointer();

  /// Whether the platform is asked.
  bool isAsked() const { return isAsked_; }
  void setAsked(bool asked) { isAsked_ = asked; }

  /// The widget's events: the pointer was there on the screen, or it left.
  void seen(const QPointF& onScreen);
  void left() { isOnWidget_ = false; }

  /// On the screen.
  QPoint position(const QWidget& widget) const;

 private:
  bool isAsked_;
  bool isOnWidget_ = false;
  QPoint last_;
};

/// The pixel in which a point lies.
QPoint pixelAt(const QPointF& point);

}  // namespace tessaly::qt
