#pragma once

#include "tessaly/platform/Desktop.h"
#include "tests/controls/RecordingToolbox.h"

namespace tessaly::tests {

/// Draws as the drawing before it, and writes down what a control has it do; in force as long as it lives.
class RecordingDrawing final : public platform::Drawing {
 public:
  RecordingDrawing(CallLog& log, const RecordingToolbox& toolbox) : log_(&log), toolbox_(&toolbox) {}

  platform::DeviceContext createSurface(Long width, Long height) override {
    return own_->createSurface(width, height);
  }
  void deleteSurface(platform::DeviceContext surface) override { own_->deleteSurface(surface); }
  platform::PixelView pixels(platform::DeviceContext surface) override { return own_->pixels(surface); }

  bool TransparentBlt(platform::DeviceContext target, Long x, Long y, Long width, Long height,
                      platform::DeviceContext source, Long sourceX, Long sourceY, Long sourceWidth,
                      Long sourceHeight, Long key) override;
  platform::DrawingObject CreateSolidBrush(Long colour) override;
  platform::DrawingObject SelectObject(platform::DeviceContext surface,
                                       platform::DrawingObject object) override;
  Long FillRect(platform::DeviceContext surface, const platform::PixelArea& area,
                platform::DrawingObject brush) override;
  bool DeleteObject(platform::DrawingObject object) override;

 private:
  std::string nameOf(platform::DrawingObject object) const {
    return object == brush_ ? "brush" : "old brush";
  }

  CallLog* log_;
  const RecordingToolbox* toolbox_;
  platform::Drawing* own_ = platform::desktop().drawing;
  platform::DrawingObject brush_ = 0;
  platform::Override override_{*this};
};

}  // namespace tessaly::tests
