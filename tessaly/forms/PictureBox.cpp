#include "tessaly/forms/PictureBox.h"

#include "tessaly/forms/UserControl.h"

namespace tessaly {
namespace {

bool hasImage(const PictureReference& picture) { return picture && !picture->isEmpty(); }

}  // namespace

PictureBox::PictureBox(UserControl& parent) : parent_(&parent) {}
PictureBox::~PictureBox() = default;

Boolean PictureBox::AutoRedraw() const { return autoRedraw_; }

void PictureBox::AutoRedraw(Boolean on) {
  if (resizeSurface(on ? size_ : PixelSize{})) clear();
  autoRedraw_ = on;
}

std::int16_t PictureBox::ScaleMode() const { return scale_.mode(); }
void PictureBox::ScaleMode(std::int16_t mode) { scale_ = Scale(mode); }
double PictureBox::ScaleWidth() const { return scale_.fromPixels(size_.width); }
double PictureBox::ScaleHeight() const { return scale_.fromPixels(size_.height); }

double PictureBox::Width() const { return parentScale().fromPixels(size_.width); }
void PictureBox::Width(double width) { setSize({parentScale().toSize(width), size_.height}); }
double PictureBox::Height() const { return parentScale().fromPixels(size_.height); }
void PictureBox::Height(double height) { setSize({size_.width, parentScale().toSize(height)}); }

Boolean PictureBox::AutoSize() const { return autoSize_; }

void PictureBox::AutoSize(Boolean on) {
  if (on && hasImage(picture_)) setSize(picture_->size());
  autoSize_ = on;
}

PictureReference PictureBox::Picture() const { return picture_; }

void PictureBox::Picture(const PictureReference& picture) {
  if (autoSize_ && hasImage(picture)) resize(picture->size());
  if (picture != picture_) clearedTo_.reset();
  picture_ = picture;
  clear();
}

OLE_COLOR PictureBox::BackColor() const { return backColor_; }
void PictureBox::BackColor(OLE_COLOR colour) { backColor_ = colour; }

platform::DeviceContext PictureBox::hDC() {
  isLent_ = true;
  return surface_.context();
}

platform::DeviceContext PictureBox::hDC() const { return surface_.context(); }
PictureReference PictureBox::Image() const { return surface_.picture(); }

Scale PictureBox::parentScale() const { return parent_->scale(); }

void PictureBox::setSize(PixelSize size) {
  if (size == size_) return;
  resize(size);
  clear();
}

void PictureBox::resize(PixelSize size) {
  if (autoRedraw_) resizeSurface(size);
  size_ = size;
}

bool PictureBox::resizeSurface(PixelSize size) {
  if (!surface_.resize(size)) return false;
  clearedTo_.reset();
  isLent_ = false;
  return true;
}

void PictureBox::clear() {
  const std::uint32_t background = pixelOf(shownColour(backColor_, parent_->container()));
  if (!isLent_ && clearedTo_ == background) return;
  if (picture_) {
    surface_.paint(*picture_, background);
  } else {
    surface_.fill(background);
  }
  clearedTo_ = background;
}

}  // namespace tessaly
