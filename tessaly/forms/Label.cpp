#include "tessaly/forms/Label.h"

#include <array>
#include <cmath>
#include <tuple>
#include <utility>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/UserControl.h"

namespace tessaly {
namespace {

double checkedPlace(double place) {
  if (!std::isfinite(place)) throw RuntimeError(RuntimeError::InvalidPropertyValue);
  return place;
}

double checkedSize(double size) {
  if (size < 0) throw RuntimeError(RuntimeError::InvalidPropertyValue);
  return checkedPlace(size);
}

}  // namespace

Label::Label(UserControl& parent) : parent_(&parent) { parent_->add(*this); }
Label::~Label() { parent_->remove(*this); }

String Label::Caption() const { return caption_; }
void Label::Caption(std::u16string_view text) { change(caption_, String(text)); }
Long Label::Alignment() const { return alignment_; }
void Label::Alignment(Long alignment) { change(alignment_, alignment); }

String Label::ToolTipText() const { return toolTipText_; }

void Label::ToolTipText(std::u16string_view text) {
  toolTipText_ = text;
  parent_->container().setToolTip(text);
}

OLE_COLOR Label::ForeColor() const { return foreColor_; }
void Label::ForeColor(OLE_COLOR colour) { change(foreColor_, colour); }
OLE_COLOR Label::BackColor() const { return backColor_; }
void Label::BackColor(OLE_COLOR colour) { change(backColor_, colour); }
const Font& Label::font() const { return font_; }
void Label::font(const Font& font) { change(font_, font); }

double Label::Left() const { return left_; }
void Label::Left(double left) { change(left_, checkedPlace(left)); }
double Label::Top() const { return top_; }
void Label::Top(double top) { change(top_, checkedPlace(top)); }
double Label::Width() const { return width_; }
void Label::Width(double width) { change(width_, checkedSize(width)); }
double Label::Height() const { return height_; }
void Label::Height(double height) { change(height_, checkedSize(height)); }

void Label::Move(double left, double top, double width, double height) {
  const std::array checked{checkedPlace(left), checkedPlace(top), checkedSize(width), checkedSize(height)};
  const bool changes = checked != std::array{left_, top_, width_, height_};
  std::tie(left_, top_, width_, height_) = std::tuple_cat(checked);
  if (changes) parent_->repaintLater();
}

bool Label::covers(double x, double y) const {
  return x >= left_ && x < left_ + width_ && y >= top_ && y < top_ + height_;
}

void Label::press(MouseState button, MouseState shift, float x, float y) const {
  const auto pressed = onMouseDown;
  if (pressed) pressed(button, shift, static_cast<float>(x - left_), static_cast<float>(y - top_));
}

template <class Value>
void Label::change(Value& field, Value value) {
  if (field == value) return;
  field = std::move(value);
  parent_->repaintLater();
}

}  // namespace tessaly
