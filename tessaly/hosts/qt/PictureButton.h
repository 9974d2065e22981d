#pragma once

#include <QImage>
#include <QPixmap>
#include <cstdint>

#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/hosts/qt/WidgetContainer.h"

namespace tessaly::qt {

/// A `transparentBitmap` in a widget. Its properties and events bear the control's names and mean what they
/// do there; what an assignment raises comes out of the call, but goes to the error handler where Qt assigns,
/// as by `setProperty` or a style sheet. Without `stretch` it is as large as a layout makes it, at first just
/// as its picture and border. The property `enabled` is the control's, not the widget's. Sizes are in logical
/// pixels, times in milliseconds, and colours have red in the low byte. Pictures are copied either way: the
/// host's stay the host's. Each assignment takes effect at once, does not check its value, and is error 7
/// where there is no memory for what it shows. The thread of the user interface uses it.
class TESSALY_QT_API PictureButton : public WidgetContainer {
  Q_OBJECT
  Q_PROPERTY(bool automaticClick READ automaticClick WRITE writeAutomaticClick)
  Q_PROPERTY(QPixmap Picture READ Picture WRITE writePicture)
  Q_PROPERTY(QPixmap disabledPicture READ disabledPicture WRITE writeDisabledPicture)
  Q_PROPERTY(int maskColor READ maskColor WRITE writeMaskColor)
  Q_PROPERTY(int automaticClickTiming READ automaticClickTiming WRITE writeAutomaticClickTiming)
  Q_PROPERTY(int backcolor READ backcolor WRITE writeBackcolor)
  Q_PROPERTY(int withBorder READ withBorder WRITE writeWithBorder)
  Q_PROPERTY(bool AutoResize READ AutoResize WRITE writeAutoResize)
  Q_PROPERTY(bool enabled READ enabled WRITE writeEnabled)
  Q_PROPERTY(
      int automaticClickFirstTiming READ automaticClickFirstTiming WRITE writeAutomaticClickFirstTiming)
  Q_PROPERTY(bool stretch READ stretch WRITE writeStretch)
  Q_PROPERTY(QPixmap resultPicture READ readResultPicture STORED false DESIGNABLE false)

 public:
  /// A new control. The widget is its parent's, or the caller's where there is none.
  explicit PictureButton(QWidget* parent = nullptr);

  /// A stored control, as `save` gave it. Error 13 for a value of another kind than its property, 481 for a
  /// picture that is damaged.
  explicit PictureButton(const PropertyBag& bag, QWidget* parent = nullptr);
  ~PictureButton() override;

  /// The control itself, which is the widget's. Its `events` bring the signals: one that the host sets there
  /// has no signal any more.
  transparentBitmap& control() const { return *control_; }

  /// Whether a press clicks at once, and again and again while it is held.
  bool automaticClick() const;
  void automaticClick(bool New_automaticClick);
  /// The main picture, and the one in its place while the control is not `enabled`; a null one for none.
  QPixmap Picture() const;
  void Picture(const QPixmap& New_Picture);
  void Picture(const QImage& New_Picture);
  QPixmap disabledPicture() const;
  void disabledPicture(const QPixmap& New_disabledPicture);
  void disabledPicture(const QImage& New_disabledPicture);

  /// The very colour of the main picture that lets the background through.
  OLE_COLOR maskColor() const;
  void maskColor(OLE_COLOR New_maskColor);

  /// Between a held button's later clicks. Outside 0 to 65535 it is error 380, in the event that needs it; 0
  /// ends the clicks.
  Long automaticClickTiming() const;
  void automaticClickTiming(Long New_automaticClickTiming);

  /// The background, of which the border's two colours are made.
  OLE_COLOR backcolor() const;
  void backcolor(OLE_COLOR New_BackColor);

  /// Lays a further picture above all others, unscaled: from 0 top left to 8 bottom right, row by row, and
  /// any other number where the one before it lies. Pixels of its `maskColor` are not drawn.
  void AddBitmap(const QPixmap& source, Long alignment, OLE_COLOR maskColor);
  void AddBitmap(const QImage& source, Long alignment, OLE_COLOR maskColor);

  /// Takes all of them away.
  void ClearBitmaps();

  /// The border's width; above 0 it makes the control a button that the pointer selects. Error 6 where its
  /// double needs more than 32 bits, and above 32767 when the border comes or goes; it is assigned all the
  /// same.
  Long withBorder() const;
  void withBorder(Long New_withBorder);

  /// Whether the main picture is scaled to the control's inside, or else lies in the middle of it.
  bool AutoResize() const;
  void AutoResize(bool New_AutoResize);

  /// Whether the control shows its main picture and can be clicked. False ends a press.
  bool enabled() const;
  void enabled(bool New_enabled);

  /// Between a press and the second click; otherwise as `automaticClickTiming`.
  Long automaticClickFirstTiming() const;
  void automaticClickFirstTiming(Long New_automaticClickFirstTiming);

  /// Whether the control takes the size of its main picture and border: at once, and with each resizing and
  /// change of the border.
  bool stretch() const;
  void stretch(bool New_stretch);

  /// The control as a picture of the caller's own, without a border, in the main picture's size or in another
  /// one, of which 0 or less stands for that. From then on its own background is red, until `backcolor` is
  /// assigned. Error 380 above 32767 pixels. It is not assigned here: by `control()` that is error 382, and
  /// 383 while the form is being designed.
  QPixmap resultPicture();
  QPixmap resultPictureWithWidth(Long w, Long h);

  /// The picture that is shown, with the border around it.
  QSize sizeHint() const override;

 signals:
  /// A click; the pointer came onto the control; it has rested there for a second. A slot may delete the
  /// widget.
  void OnButtonClick();
  void OnButtonSelected();
  void OnButtonSelectedTiming();

  /// For direct connections: what is changed through a pointer counts for the control.
  void MouseMove(std::int16_t* Button, std::int16_t* Shift, float* x, float* y);
  void MouseDown(std::int16_t* Button, std::int16_t* Shift, float* x, float* y);
  void MouseUp(std::int16_t* Button, std::int16_t* Shift, float* x, float* y);

 protected:
  void propertyChanged(std::u16string_view name) override;

 private:
  void prepare();
  void connectEvents();
  QPixmap readResultPicture();
  void writeAutomaticClick(bool value);
  void writePicture(const QPixmap& value);
  void writeDisabledPicture(const QPixmap& value);
  void writeMaskColor(int value);
  void writeAutomaticClickTiming(int value);
  void writeBackcolor(int value);
  void writeWithBorder(int value);
  void writeAutoResize(bool value);
  void writeEnabled(bool value);
  void writeAutomaticClickFirstTiming(int value);
  void writeStretch(bool value);

  std::shared_ptr<transparentBitmap> control_;
  QSize hint_;
};

}  // namespace tessaly::qt
