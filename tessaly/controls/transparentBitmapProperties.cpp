// The properties: how each is read and assigned, and how the bag keeps them.

#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/controls/transparentBitmapChildren.h"
#include "tessaly/controls/transparentBitmapTables.h"

namespace tessaly {
namespace {

consteval const PropertyRow& row(std::u16string_view name) {
  return rowOf(kTransparentBitmapProperties, name);
}

constexpr const PropertyRow& kAutomaticClick = row(u"automaticClick");
constexpr const PropertyRow& kPicture = row(u"Picture");
constexpr const PropertyRow& kDisabledPicture = row(u"disabledPicture");
constexpr const PropertyRow& kMaskColor = row(u"maskColor");
constexpr const PropertyRow& kAutomaticClickTiming = row(u"automaticClickTiming");
constexpr const PropertyRow& kBackcolor = row(u"backcolor");
constexpr const PropertyRow& kWithBorder = row(u"withBorder");
constexpr const PropertyRow& kAutoResize = row(u"AutoResize");
constexpr const PropertyRow& kEnabled = row(u"enabled");
constexpr const PropertyRow& kAutomaticClickFirstTiming = row(u"automaticClickFirstTiming");
constexpr const PropertyRow& kStretch = row(u"stretch");

}  // namespace

Boolean transparentBitmap::automaticClick() const { return automaticClick_; }

void transparentBitmap::automaticClick(Boolean New_automaticClick) {
  automaticClick_ = New_automaticClick;
  children_->userControl->PropertyChanged(kAutomaticClick.bagKey);
}

PictureReference transparentBitmap::Picture() const { return picture_; }

void transparentBitmap::Picture(const PictureReference& New_Picture) {
  picture_ = New_Picture;
  recompose();
  children_->userControl->PropertyChanged(kPicture.bagKey);
}

PictureReference transparentBitmap::disabledPicture() const { return disabledPicture_; }

void transparentBitmap::disabledPicture(const PictureReference& New_disabledPicture) {
  disabledPicture_ = New_disabledPicture;
  recompose();
  children_->userControl->PropertyChanged(kDisabledPicture.bagKey);
}

OLE_COLOR transparentBitmap::maskColor() const { return maskColor_; }

void transparentBitmap::maskColor(OLE_COLOR New_maskColor) {
  maskColor_ = New_maskColor;
  recompose();
  children_->userControl->PropertyChanged(kMaskColor.bagKey);
}

Long transparentBitmap::automaticClickTiming() const { return automaticClickTiming_; }

void transparentBitmap::automaticClickTiming(Long New_automaticClickTiming) {
  automaticClickTiming_ = New_automaticClickTiming;
  children_->userControl->PropertyChanged(kAutomaticClickTiming.bagKey);
}

OLE_COLOR transparentBitmap::backcolor() const { return backcolor_; }

void transparentBitmap::backcolor(OLE_COLOR New_BackColor) {
  backcolor_ = New_BackColor;
  children_->userControl->BackColor(backcolor_);
  children_->result->BackColor(backcolor_);
  recompose();
  children_->userControl->PropertyChanged(kBackcolor.bagKey);
}

Long transparentBitmap::withBorder() const { return withBorder_; }

void transparentBitmap::withBorder(Long New_withBorder) {
  withBorder_ = New_withBorder;
  Resize();
  children_->userControl->PropertyChanged(kWithBorder.bagKey);
}

Boolean transparentBitmap::AutoResize() const { return autoResize_; }

void transparentBitmap::AutoResize(Boolean New_AutoResize) {
  autoResize_ = New_AutoResize;
  recompose();
  children_->userControl->PropertyChanged(kAutoResize.bagKey);
}

Boolean transparentBitmap::enabled() const { return isEnabled_; }

void transparentBitmap::enabled(Boolean New_enabled) {
  isEnabled_ = New_enabled;
  if (!isEnabled_) {
    if (withBorder_ > 0) showBorder(False, False);
    isPressed_ = False;
  }
  recompose();
  children_->userControl->PropertyChanged(kEnabled.bagKey);
}

Long transparentBitmap::automaticClickFirstTiming() const { return automaticClickFirstTiming_; }

void transparentBitmap::automaticClickFirstTiming(Long New_automaticClickFirstTiming) {
  automaticClickFirstTiming_ = New_automaticClickFirstTiming;
  children_->userControl->PropertyChanged(kAutomaticClickFirstTiming.bagKey);
}

Boolean transparentBitmap::stretch() const { return stretch_; }

void transparentBitmap::stretch(Boolean New_stretch) {
  stretch_ = New_stretch;
  Resize();
  children_->userControl->PropertyChanged(kStretch.bagKey);
}

void transparentBitmap::InitProperties() {
  picture_ = LoadPicture(u"");
  maskColor_ = kMaskColor.longDefault();
  backcolor_ = kBackcolor.longDefault();
  children_->userControl->BackColor(0);
  children_->result->BackColor(backcolor_);
  isEnabled_ = kEnabled.booleanDefault();
  withBorder_ = kWithBorder.longDefault();
  autoResize_ = kAutoResize.booleanDefault();
  disabledPicture_ = LoadPicture(u"");
  automaticClick_ = kAutomaticClick.booleanDefault();
  automaticClickTiming_ = kAutomaticClickTiming.longDefault();
  automaticClickFirstTiming_ = kAutomaticClickFirstTiming.longDefault();
  stretch_ = kStretch.booleanDefault();
}

void transparentBitmap::ReadProperties(const PropertyBag& bag) {
  picture_ = pictureOf(readProperty(bag, kPicture));
  disabledPicture_ = pictureOf(readProperty(bag, kDisabledPicture));
  maskColor_ = longOf(readProperty(bag, kMaskColor));
  backcolor_ = longOf(readProperty(bag, kBackcolor));
  withBorder_ = longOf(readProperty(bag, kWithBorder));
  children_->userControl->BackColor(backcolor_);
  children_->result->BackColor(backcolor_);
  autoResize_ = booleanOf(readProperty(bag, kAutoResize));
  isEnabled_ = booleanOf(readProperty(bag, kEnabled));
  automaticClick_ = booleanOf(readProperty(bag, kAutomaticClick));
  automaticClickTiming_ = longOf(readProperty(bag, kAutomaticClickTiming));
  automaticClickFirstTiming_ = longOf(readProperty(bag, kAutomaticClickFirstTiming));
  stretch_ = booleanOf(readProperty(bag, kStretch));
  Resize();
}

void transparentBitmap::WriteProperties(PropertyBag& bag) {
  writeProperty(bag, kPicture, picture_);
  writeProperty(bag, kMaskColor, Variant(maskColor_));
  writeProperty(bag, kBackcolor, Variant(backcolor_));
  writeProperty(bag, kWithBorder, Variant(withBorder_));
  writeProperty(bag, kAutoResize, Variant(autoResize_));
  writeProperty(bag, kEnabled, Variant(isEnabled_));
  writeProperty(bag, kDisabledPicture, disabledPicture_);
  writeProperty(bag, kAutomaticClick, Variant(automaticClick_));
  writeProperty(bag, kAutomaticClickTiming, Variant(automaticClickTiming_));
  writeProperty(bag, kAutomaticClickFirstTiming, Variant(automaticClickFirstTiming_));
  writeProperty(bag, kStretch, Variant(stretch_));
}

}  // namespace tessaly
