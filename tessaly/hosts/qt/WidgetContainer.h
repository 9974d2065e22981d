#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/Container.h"
#include "tessaly/forms/PropertyBag.h"
#include "tessaly/hosts/qt/Export.h"

namespace tessaly::qt {

class WidgetPlace;

/// A widget that holds one control and brings it what Qt brings the widget. A class for a kind of control
/// derives from it. The widget may be deleted in an event of its control. What such an event raises goes to
/// the error handler, never into Qt's loop; what a call raises comes out of the call. The focus policy tells
/// whether Tab reaches it: it does not at first. While it has the keyboard, the space bar and Return do what
/// a press and a release on the control do, and it shows that it has. Where Qt disables the widget the
/// control gets no input, and shows nothing of it. A press whose release nobody will tell of, since the
/// widget is hidden or disabled, a dialog or a menu has come, or the keyboard has gone, is released outside.
/// The thread of the user interface uses it.
class TESSALY_QT_API WidgetContainer : public QWidget {
  Q_OBJECT

 public:
  using ErrorHandler = std::function<void(const RuntimeError&)>;

  ~WidgetContainer() override;

  /// The control's properties as its form keeps them, the caller's own; a constructor of the widget's class
  /// takes them. What the control raises comes out of the call.
  PropertyBag save() const;

  /// Whether the form runs, which it does at first, or is being designed.
  bool UserMode() const;
  void setUserMode(bool runs);

  /// Who hears of what events raise, want of memory as error 7; at first, and with an empty handler, the
  /// user, by a message box that comes when the loop does. The handler is called after the event and may
  /// delete the widget; errors that it raises itself are passed over.
  void setErrorHandler(ErrorHandler handler);

  /// Whether the platform is asked where the pointer is, as it is at first where it tells; where not, the
  /// widget's own events tell, and after a leave event the pointer is outside.
  bool isPointerAsked() const;
  void setPointerAsked(bool asked);

  /// Presses and releases the control at once, as Return does. What that raises goes to the error handler.
  void press();

  /// Whether a button or the space bar is held that went down on the control.
  bool isPressHeld() const;

  /// As large as the texts of its labels are in one line.
  QSize sizeHint() const override;

 signals:
  /// The property of this bag key has changed, so the form is to be saved.
  void PropertyChanged(const QString& name);

 protected:
  explicit WidgetContainer(QWidget* parent);

  /// Makes the one control: a new one, or one from a bag, for the derived class's constructor. What its
  /// beginning raises comes out of the call. It already calls `propertyChanged`.
  template <class Control>
  std::shared_ptr<Control> place() {
    auto control = std::make_shared<Control>(container());
    begin(control, nullptr);
    return control;
  }
  template <class Control>
  std::shared_ptr<Control> place(const PropertyBag& bag) {
    auto control = std::make_shared<Control>(container());
    begin(control, &bag);
    return control;
  }

  /// Calls what Qt has asked for; what it raises goes to the error handler.
  void guard(const std::function<void()>& call) noexcept;

  /// The control tells that a property has changed, at first while it is still being placed. The widget may
  /// be gone when it returns.
  virtual void propertyChanged(std::u16string_view name);

  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  friend class WidgetPlace;

  Container& container() const;
  void begin(const std::shared_ptr<void>& control, const PropertyBag* bag);

  std::shared_ptr<WidgetPlace> place_;
};

}  // namespace tessaly::qt
