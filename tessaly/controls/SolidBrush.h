#pragma once

#include "tessaly/forms/Colour.h"
#include "tessaly/forms/Geometry.h"
#include "tessaly/platform/Desktop.h"

namespace tessaly {

/// A brush of one colour (CreateSolidBrush, DeleteObject).
class SolidBrush {
 public:
  explicit SolidBrush(OLE_COLOR colour) : brush_(drawing_->CreateSolidBrush(colour)) {}
  SolidBrush(const SolidBrush&) = delete;
  SolidBrush& operator=(const SolidBrush&) = delete;
  ~SolidBrush() { drawing_->DeleteObject(brush_); }

  platform::Drawing& drawing() const { return *drawing_; }
  platform::DrawingObject object() const { return brush_; }

 private:
  platform::Drawing* drawing_ = platform::desktop().drawing;
  platform::DrawingObject brush_;
};

/// A brush in a surface, which has the one that was there again at the end (SelectObject).
class SelectedBrush {
 public:
  /// The brush must outlive it.
  SelectedBrush(platform::DeviceContext surface, const SolidBrush& brush)
      : surface_(surface), brush_(&brush), before_(brush.drawing().SelectObject(surface, brush.object())) {}
  SelectedBrush(const SelectedBrush&) = delete;
  SelectedBrush& operator=(const SelectedBrush&) = delete;
  ~SelectedBrush() { brush_->drawing().SelectObject(surface_, before_); }

  /// Fills from the top left corner on.
  void fill(PixelSize area) const {
    brush_->drawing().FillRect(surface_, {0, 0, area.width, area.height}, brush_->object());
  }

 private:
  platform::DeviceContext surface_;
  const SolidBrush* brush_;
  platform::DrawingObject before_;
};

}  // namespace tessaly
