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
/// as its picture and border. The property `enabled` is the control's, not the widget's.
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
  explicit PictureButton(QWidget* parent = nullptr);

  /// A stored control, as `save` gave it.
  explicit PictureButton(const PropertyBag& bag, QWidget* parent = nullptr);
  ~PictureButton() override;

  /// The control itself, whose `events` bring the signals: one that the host sets there has no signal any
  /// more.
  transparentBitmap& control() const { return *control_; }

  bool automaticClick() const;
  void automaticClick(bool New_automaticClick);
  QPixmap Picture() const;
  void Picture(const QPixmap& New_Picture);
  void Picture(const QImage& New_Picture);
  QPixmap disabledPicture() const;
  void disabledPicture(const QPixmap& New_disabledPicture);
  void disabledPicture(const QImage& New_disabledPicture);
  OLE_COLOR maskColor() const;
  void maskColor(OLE_COLOR New_maskColor);
  Long automaticClickTiming() const;
  void automaticClickTiming(Long New_automaticClickTiming);
  OLE_COLOR backcolor() const;
  void backcolor(OLE_COLOR New_BackColor);
  void AddBitmap(const QPixmap& source, Long alignment, OLE_COLOR maskColor);
  void AddBitmap(const QImage& source, Long alignment, OLE_COLOR maskColor);
  void ClearBitmaps();
  Long withBorder() const;
  void withBorder(Long New_withBorder);
  bool AutoResize() const;
  void AutoResize(bool New_AutoResize);
  bool enabled() const;
  void enabled(bool New_enabled);
  Long automaticClickFirstTiming() const;
  void automaticClickFirstTiming(Long New_automaticClickFirstTiming);
  bool stretch() const;
  void stretch(bool New_stretch);
  QPixmap resultPicture();
  QPixmap resultPictureWithWidth(Long w, Long h);

  /// The picture that is shown, with the border around it.
  QSize sizeHint() const override;

 signals:
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
