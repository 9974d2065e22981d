#include "tessaly/forms/Line.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "tessaly/base/Rounding.h"
#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/LinePixels.h"
#include "tessaly/forms/UserControl.h"

namespace tessaly {
namespace {

/// Ends beyond it are drawn as if they were there.
constexpr double kFarthest = 1 << 30;

}  // namespace

Line::Line(UserControl& parent) : parent_(&parent) { parent_->add(*this); }
Line::~Line() { parent_->remove(*this); }

double Line::X1() const { return x1_; }
void Line::X1(double x) { place(x1_, x); }
double Line::Y1() const { return y1_; }
void Line::Y1(double y) { place(y1_, y); }
double Line::X2() const { return x2_; }
void Line::X2(double x) { place(x2_, x); }
double Line::Y2() const { return y2_; }
void Line::Y2(double y) { place(y2_, y); }

OLE_COLOR Line::BorderColor() const { return borderColor_; }
void Line::BorderColor(OLE_COLOR colour) { change(borderColor_, colour); }

std::int16_t Line::BorderWidth() const { return borderWidth_; }

void Line::BorderWidth(std::int16_t width) {
  if (width < 1) throw RuntimeError(RuntimeError::InvalidPropertyValue);
  change(borderWidth_, width);
}

Boolean Line::Visible() const { return visible_; }

void Line::Visible(Boolean visible) {
  const bool changes = (visible != 0) != (visible_ != 0);
  visible_ = visible;
  if (changes) parent_->repaintLater();
}

void Line::place(double& field, double measure) {
  if (!std::isfinite(measure)) throw RuntimeError(RuntimeError::InvalidPropertyValue);
  change(field, measure);
}

template <class Value>
void Line::change(Value& field, Value value) {
  const bool changes = std::exchange(field, value) != value;
  if (changes && visible_) parent_->repaintLater();
}

void Line::drawOn(platform::PixelView pixels) const {
  const double perPixel = parent_->scale().fromPixels(1);
  const auto pixel = [perPixel](double measure) {
    return roundToLong(std::clamp(measure / perPixel, -kFarthest, kFarthest));
  };
  drawLine(pixels, {pixel(x1_), pixel(y1_)}, {pixel(x2_), pixel(y2_)}, borderWidth_,
           pixelOf(shownColour(borderColor_, parent_->container())));
}

}  // namespace tessaly
