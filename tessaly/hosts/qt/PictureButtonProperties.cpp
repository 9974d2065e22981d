// The control's properties among Qt's. An assignment holds the control, since the host may delete the widget
// when it is told of the change.

#include "tessaly/hosts/qt/PictureButton.h"
#include "tessaly/hosts/qt/Pictures.h"

namespace tessaly::qt {

bool PictureButton::automaticClick() const { return control_->automaticClick() != 0; }
QPixmap PictureButton::Picture() const { return toPixmap(control_->Picture()); }
QPixmap PictureButton::disabledPicture() const { return toPixmap(control_->disabledPicture()); }
OLE_COLOR PictureButton::maskColor() const { return control_->maskColor(); }
Long PictureButton::automaticClickTiming() const { return control_->automaticClickTiming(); }
OLE_COLOR PictureButton::backcolor() const { return control_->backcolor(); }
Long PictureButton::withBorder() const { return control_->withBorder(); }
bool PictureButton::AutoResize() const { return control_->AutoResize() != 0; }
bool PictureButton::enabled() const { return control_->enabled() != 0; }
Long PictureButton::automaticClickFirstTiming() const { return control_->automaticClickFirstTiming(); }
bool PictureButton::stretch() const { return control_->stretch() != 0; }

void PictureButton::automaticClick(bool New_automaticClick) {
  const auto held = control_;
  held->automaticClick(New_automaticClick);
}

void PictureButton::Picture(const QPixmap& New_Picture) { Picture(New_Picture.toImage()); }

void PictureButton::Picture(const QImage& New_Picture) {
  const auto held = control_;
  held->Picture(toPicture(New_Picture));
}

void PictureButton::disabledPicture(const QPixmap& New_disabledPicture) {
  disabledPicture(New_disabledPicture.toImage());
}

void PictureButton::disabledPicture(const QImage& New_disabledPicture) {
  const auto held = control_;
  held->disabledPicture(toPicture(New_disabledPicture));
}

void PictureButton::maskColor(OLE_COLOR New_maskColor) {
  const auto held = control_;
  held->maskColor(New_maskColor);
}

void PictureButton::automaticClickTiming(Long New_automaticClickTiming) {
  const auto held = control_;
  held->automaticClickTiming(New_automaticClickTiming);
}

void PictureButton::backcolor(OLE_COLOR New_BackColor) {
  const auto held = control_;
  held->backcolor(New_BackColor);
}

void PictureButton::AddBitmap(const QPixmap& source, Long alignment, OLE_COLOR maskColor) {
  AddBitmap(source.toImage(), alignment, maskColor);
}

void PictureButton::AddBitmap(const QImage& source, Long alignment, OLE_COLOR maskColor) {
  control_->AddBitmap(toPicture(source), alignment, maskColor);
}

void PictureButton::ClearBitmaps() { control_->ClearBitmaps(); }

void PictureButton::withBorder(Long New_withBorder) {
  const auto held = control_;
  held->withBorder(New_withBorder);
}

void PictureButton::AutoResize(bool New_AutoResize) {
  const auto held = control_;
  held->AutoResize(New_AutoResize);
}

void PictureButton::enabled(bool New_enabled) {
  const auto held = control_;
  held->enabled(New_enabled);
}

void PictureButton::automaticClickFirstTiming(Long New_automaticClickFirstTiming) {
  const auto held = control_;
  held->automaticClickFirstTiming(New_automaticClickFirstTiming);
}

void PictureButton::stretch(bool New_stretch) {
  const auto held = control_;
  held->stretch(New_stretch);
}

QPixmap PictureButton::resultPicture() { return toPixmap(control_->resultPicture()); }

QPixmap PictureButton::resultPictureWithWidth(Long w, Long h) {
  return toPixmap(control_->resultPictureWithWidth(w, h));
}

QPixmap PictureButton::readResultPicture() {
  QPixmap result;
  guard([&] { result = resultPicture(); });
  return result;
}

void PictureButton::writeAutomaticClick(bool value) {
  guard([&] { automaticClick(value); });
}
void PictureButton::writePicture(const QPixmap& value) {
  guard([&] { Picture(value); });
}
void PictureButton::writeDisabledPicture(const QPixmap& value) {
  guard([&] { disabledPicture(value); });
}
void PictureButton::writeMaskColor(int value) {
  guard([&] { maskColor(value); });
}
void PictureButton::writeAutomaticClickTiming(int value) {
  guard([&] { automaticClickTiming(value); });
}
void PictureButton::writeBackcolor(int value) {
  guard([&] { backcolor(value); });
}
void PictureButton::writeWithBorder(int value) {
  guard([&] { withBorder(value); });
}
void PictureButton::writeAutoResize(bool value) {
  guard([&] { AutoResize(value); });
}
void PictureButton::writeEnabled(bool value) {
  guard([&] { enabled(value); });
}
void PictureButton::writeAutomaticClickFirstTiming(int value) {
  guard([&] { automaticClickFirstTiming(value); });
}
void PictureButton::writeStretch(bool value) {
  guard([&] { stretch(value); });
}

}  // namespace tessaly::qt
