#include "tessaly/forms/UserControl.h"

#include <algorithm>
#include <utility>

#include "tessaly/forms/Cover.h"
#include "tessaly/forms/Label.h"
#include "tessaly/forms/Line.h"
#include "tessaly/forms/NoContainer.h"

namespace tessaly {
namespace {

constexpr Scale kOuterScale(Scale::kTwips);

/// What both have, from the top left on. The sizes differ only where there was no memory for a new surface.
void copyPixels(platform::PixelView from, platform::PixelView to) {
  const Long width = std::min(from.width, to.width);
  const Long height = std::min(from.height, to.height);
  for (std::ptrdiff_t row = 0; row < height; ++row) {
    std::copy_n(from.pixels + row * from.width, width, to.pixels + row * to.width);
  }
}

/// A flag that is up as long as this lasts.
class Raised {
 public:
  explicit Raised(bool& flag) : flag_(&flag), before_(std::exchange(flag, true)) {}
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;
  ~Raised() { *flag_ = before_; }

 private:
  bool* flag_;
  bool before_;
};

}  // namespace

UserControl::UserControl(Container& container, UserControlEvents& control)
    : container_(&container), control_(&control) {
  container_->attach(*this);
}

UserControl::~UserControl() { container_->detach(); }

void UserControl::leave() { container_ = &noContainer(); }

void UserControl::Cls() {
  surface_.fill(pixelOf(shownColour(backColor_, *container_)));
  repaintLater();
}

void UserControl::Refresh() {
  if (!isPainting_) container_->repaint();
}

void UserControl::repaintLater() {
  if (!isPainting_) container_->repaintLater();
}

Boolean UserControl::AutoRedraw() const { return autoRedraw_; }

void UserControl::AutoRedraw(Boolean on) {
  fitSurface(on);
  autoRedraw_ = on;
}

std::int16_t UserControl::ScaleMode() const { return scale_.mode(); }
void UserControl::ScaleMode(std::int16_t mode) { scale_ = Scale(mode); }
double UserControl::ScaleWidth() const { return scale_.fromPixels(container_->size().width); }
double UserControl::ScaleHeight() const { return scale_.fromPixels(container_->size().height); }

double UserControl::Width() const { return kOuterScale.fromPixels(container_->size().width); }

void UserControl::Width(double twips) {
  container_->setSize({kOuterScale.toSize(twips), container_->size().height});
}

double UserControl::Height() const { return kOuterScale.fromPixels(container_->size().height); }

void UserControl::Height(double twips) {
  container_->setSize({container_->size().width, kOuterScale.toSize(twips)});
}

OLE_COLOR UserControl::BackColor() const { return backColor_; }
void UserControl::BackColor(OLE_COLOR colour) { backColor_ = colour; }

platform::DeviceContext UserControl::hDC() const { return surface_.context(); }
platform::WindowHandle UserControl::hWnd() const { return container_->hWnd(); }

std::int16_t UserControl::MousePointer() const { return mousePointer_; }

void UserControl::MousePointer(std::int16_t pointer) {
  mousePointer_ = pointer;
  container_->setCursor(mousePointer_, mouseIcon_);
}

void UserControl::setMouseIcon(const MouseIcon& icon) {
  mouseIcon_ = icon;
  container_->setCursor(mousePointer_, mouseIcon_);
}

void UserControl::PropertyChanged(std::u16string_view name) { container_->PropertyChanged(name); }

void UserControl::create() {
  control_->InitProperties();
  resized();
}

void UserControl::restore(const PropertyBag& bag) {
  control_->ReadProperties(bag);
  resized();
}

void UserControl::save(PropertyBag& bag) { control_->WriteProperties(bag); }

void UserControl::resized() {
  fitSurface(autoRedraw_);
  control_->Resize();
}

void UserControl::mouseDown(MouseState button, MouseState shift, PixelPoint point) {
  if (heldButtons_ == 0) container_->setCapture(true);
  heldButtons_ = static_cast<MouseState>(heldButtons_ | button);
  if (Label* const label = labelAt(point)) {
    label->press(button, shift, place(point.x), place(point.y));
  } else {
    control_->MouseDown(button, shift, place(point.x), place(point.y));
  }
}

void UserControl::mouseMove(MouseState buttons, MouseState shift, PixelPoint point) {
  control_->MouseMove(buttons, shift, place(point.x), place(point.y));
}

void UserControl::mouseUp(MouseState button, MouseState shift, PixelPoint point) {
  const bool held = heldButtons_ != 0;
  heldButtons_ = static_cast<MouseState>(heldButtons_ & ~button);
  if (held && heldButtons_ == 0) container_->setCapture(false);
  control_->MouseUp(button, shift, place(point.x), place(point.y));
}

void UserControl::captureLost() { heldButtons_ = 0; }

void UserControl::fitSurface(bool isWanted) {
  const bool isNew = surface_.resize(isWanted ? container_->size() : PixelSize{});
  if (isNew) surface_.fill(pixelOf(shownColour(backColor_, *container_)));
}

float UserControl::place(Long pixels) const { return static_cast<float>(scale_.fromPixels(pixels)); }

Label* UserControl::labelAt(PixelPoint point) const {
  const double x = scale_.fromPixels(point.x);
  const double y = scale_.fromPixels(point.y);
  const auto hit =
      std::find_if(labels_.rbegin(), labels_.rend(), [&](const Label* label) { return label->covers(x, y); });
  return hit != labels_.rend() ? *hit : nullptr;
}

void UserControl::prepareToShow() {
  if (autoRedraw_) return;
  const Raised painting(isPainting_);
  control_->Paint();
}

platform::PixelView UserControl::surface() const { return surface_.pixels(); }

PictureReference UserControl::picture() {
  const PixelSize size = container_->size();
  if (pixelCount(size) == 0) return std::make_shared<const Picture>();
  std::vector<std::uint32_t> shown(pixelCount(size));
  drawOn({shown.data(), size.width, size.height});
  return std::make_shared<const Picture>(size, std::move(shown));
}

void UserControl::drawOn(platform::PixelView view) const {
  const std::span<std::uint32_t> pixels(view.pixels, pixelCount({view.width, view.height}));
  if (surface_.size() != PixelSize{view.width, view.height}) {
    std::ranges::fill(pixels, pixelOf(shownColour(backColor_, *container_)));
  }
  copyPixels(surface_.pixels(), view);
  for (const Line* line : lines_) {
    if (line->Visible()) line->drawOn(view);
  }
  for (std::uint32_t& pixel : pixels) pixel |= kCovers;
}

void UserControl::add(Line& line) { lines_.push_back(&line); }
void UserControl::remove(Line& line) { std::erase(lines_, &line); }
void UserControl::add(Label& label) { labels_.push_back(&label); }
void UserControl::remove(Label& label) { std::erase(labels_, &label); }

}  // namespace tessaly
