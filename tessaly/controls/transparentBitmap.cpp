#include "tessaly/controls/transparentBitmap.h"

#include "tessaly/base/RuntimeError.h"
#include "tessaly/controls/transparentBitmapChildren.h"

namespace tessaly {
namespace {

constexpr Long kRestMilliseconds = 1000;

}  // namespace

/// The door for the surface's events, so that the control itself needs no base class.
struct transparentBitmap::SurfaceEvents final : UserControlEvents {
  explicit SurfaceEvents(transparentBitmap& control) : control_(&control) {}

  void InitProperties() override { control_->InitProperties(); }
  void ReadProperties(const PropertyBag& bag) override { control_->ReadProperties(bag); }
  void WriteProperties(PropertyBag& bag) override { control_->WriteProperties(bag); }
  void Resize() override { control_->Resize(); }
  void Paint() override { control_->Paint(); }

  void MouseDown(MouseState button, MouseState shift, float x, float y) override {
    control_->MouseDown(button, shift, x, y);
  }
  void MouseMove(MouseState button, MouseState shift, float x, float y) override {
    control_->MouseMove(button, shift, x, y);
  }
  void MouseUp(MouseState button, MouseState shift, float x, float y) override {
    control_->MouseUp(button, shift, x, y);
  }

 private:
  transparentBitmap* control_;
};

transparentBitmap::transparentBitmap(Container& container)
    : surfaceEvents_(std::make_unique<SurfaceEvents>(*this)),
      children_(std::make_unique<transparentBitmapChildren>(
          container, *surfaceEvents_,
          transparentBitmapChildren::Ticks{[this] { Timer1Tick(); }, [this] { Timer2Tick(); },
                                           [this] { timerAutoClickTick(); }})) {
  isEnabled_ = True;
  isHovered_ = False;
  isPressed_ = False;
  selectedDelay_ = kRestMilliseconds;
  selectedRaised_ = False;
}

// Overlays go first, then the rest.
transparentBitmap::~transparentBitmap() { bitmapList_.clear(); }

void transparentBitmap::recompose() { composeImage(nullptr, -1, -1); }
void transparentBitmap::Paint() { recompose(); }

void transparentBitmap::AddBitmap(const PictureReference& source, Long alignment, OLE_COLOR maskColor) {
  bitmapList_.push_back({source, alignment, maskColor});
  recompose();
}

void transparentBitmap::ClearBitmaps() {
  bitmapList_ = {};
  recompose();
}

PictureReference transparentBitmap::resultPicture() { return resultPictureWithWidth(-1, -1); }

void transparentBitmap::resultPicture(const PictureReference&) {
  const bool runs = children_->userControl->container().UserMode();
  throw RuntimeError(runs ? RuntimeError::PropertyNotSettableAtRunTime : RuntimeError::PropertyReadOnly);
}

PictureReference transparentBitmap::resultPictureWithWidth(Long w, Long h) {
  composeImage(children_->result.get(), w, h);
  return children_->result->Image();
}

}  // namespace tessaly
