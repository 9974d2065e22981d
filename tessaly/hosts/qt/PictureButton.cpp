#include "tessaly/hosts/qt/PictureButton.h"

#include <algorithm>
#include <utility>

#include "tessaly/hosts/qt/AccessibleButton.h"

namespace tessaly::qt {
namespace {

constexpr std::int64_t kLongestHint = 32767;

int withBothBorders(Long side, Long border) {
  return static_cast<int>(std::min(side + 2 * std::max<std::int64_t>(border, 0), kLongestHint));
}

}  // namespace

// Not among the initialisers: a control that is being placed already tells of its properties, and so there
// must be a pointer, to none.
PictureButton::PictureButton(QWidget* parent) : WidgetContainer(parent) {
  control_ = place<transparentBitmap>();
  prepare();
}

PictureButton::PictureButton(const PropertyBag& bag, QWidget* parent) : WidgetContainer(parent) {
  control_ = place<transparentBitmap>(bag);
  prepare();
}

// An event that runs may hold the control for longer than there is a widget to raise signals.
PictureButton::~PictureButton() { control_->events = {}; }

void PictureButton::prepare() {
  installAccessibleButton();
  setSizePolicy({QSizePolicy::Fixed, QSizePolicy::Fixed, QSizePolicy::ToolButton});
  connectEvents();
  hint_ = PictureButton::sizeHint();
}

void PictureButton::connectEvents() {
  transparentBitmapEvents& events = control_->events;
  events.OnButtonClick = [this] { emit OnButtonClick(); };
  events.OnButtonSelected = [this] { emit OnButtonSelected(); };
  events.OnButtonSelectedTiming = [this] { emit OnButtonSelectedTiming(); };
  events.MouseMove = [this](auto& button, auto& shift, float& x, float& y) {
    emit MouseMove(&button, &shift, &x, &y);
  };
  events.MouseDown = [this](auto& button, auto& shift, float& x, float& y) {
    emit MouseDown(&button, &shift, &x, &y);
  };
  events.MouseUp = [this](auto& button, auto& shift, float& x, float& y) {
    emit MouseUp(&button, &shift, &x, &y);
  };
}

QSize PictureButton::sizeHint() const {
  const PictureReference shown = control_->enabled() ? control_->Picture() : control_->disabledPicture();
  const PixelSize size = shown ? shown->size() : PixelSize{};
  return {withBothBorders(size.width, control_->withBorder()),
          withBothBorders(size.height, control_->withBorder())};
}

// The control tells of a property of a bag before it is anybody's.
void PictureButton::propertyChanged(std::u16string_view name) {
  if (control_) {
    if (name == u"enabled") tellAccessibility(*this);
    const QSize before = std::exchange(hint_, sizeHint());
    if (before != hint_) updateGeometry();
  }
  WidgetContainer::propertyChanged(name);
}

}  // namespace tessaly::qt
