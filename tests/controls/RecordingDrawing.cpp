#include "tests/controls/RecordingDrawing.h"

#include <sstream>

namespace tessaly::tests {
namespace {

std::string hex(Long number) {
  std::ostringstream text;
  text << std::hex << std::uppercase << number;
  return "&H" + text.str();
}

std::string shownArea(Long x, Long y, Long width, Long height) {
  std::ostringstream text;
  text << x << "," << y << " " << width << "x" << height;
  return text.str();
}

}  // namespace

bool RecordingDrawing::TransparentBlt(platform::DeviceContext target, Long x, Long y, Long width, Long height,
                                      platform::DeviceContext source, Long sourceX, Long sourceY,
                                      Long sourceWidth, Long sourceHeight, Long key) {
  log_->note("TransparentBlt " + toolbox_->nameOf(target) + " " + shownArea(x, y, width, height) + " from " +
             toolbox_->nameOf(source) + " " + shownArea(sourceX, sourceY, sourceWidth, sourceHeight) +
             " key " + hex(key));
  return own_->TransparentBlt(target, x, y, width, height, source, sourceX, sourceY, sourceWidth,
                              sourceHeight, key);
}

platform::DrawingObject RecordingDrawing::CreateSolidBrush(Long colour) {
  log_->note("CreateSolidBrush " + hex(colour));
  brush_ = own_->CreateSolidBrush(colour);
  return brush_;
}

platform::DrawingObject RecordingDrawing::SelectObject(platform::DeviceContext surface,
                                                       platform::DrawingObject object) {
  log_->note("SelectObject " + toolbox_->nameOf(surface) + " " + nameOf(object));
  return own_->SelectObject(surface, object);
}

Long RecordingDrawing::FillRect(platform::DeviceContext surface, const platform::PixelArea& area,
                                platform::DrawingObject brush) {
  log_->note("FillRect " + toolbox_->nameOf(surface) + " " +
             shownArea(area.left, area.top, area.right, area.bottom) + " " + nameOf(brush));
  return own_->FillRect(surface, area, brush);
}

bool RecordingDrawing::DeleteObject(platform::DrawingObject object) {
  log_->note("DeleteObject " + nameOf(object));
  return own_->DeleteObject(object);
}

}  // namespace tessaly::tests
