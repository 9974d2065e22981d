#pragma once

#include <map>
#include <vector>

#include "examples/showcase/window/Window.h"
#include "tessaly/forms/headless/Form.h"

namespace showcase::tests {

/// A window without a display, which keeps what it is told.
class FakeWindow final : public Window {
 public:
  void setTitle(std::u16string_view text) override { title = text; }
  void setRightToLeft(bool isIt) override { isRightToLeft = isIt; }
  tessaly::transparentBitmap& addButton() override;
  void addGap() override { ++gaps; }
  void nameButton(const tessaly::transparentBitmap& button, std::u16string_view name) override;
  void setColumns(const std::array<tessaly::String, 4>& texts) override { headings = texts; }
  void setListFont(std::u16string_view name, tessaly::Long points) override;
  void addEvent(const Event& event) override { events.push_back(event); }
  void setStatus(const std::array<tessaly::String, 3>& parts) override { status = parts; }
  void point(const tessaly::transparentBitmap& button) override;
  void press(const tessaly::transparentBitmap& button) override;
  void hold(const tessaly::transparentBitmap& button) override;
  void release(const tessaly::transparentBitmap& button) override;

  /// Time goes on by a hundredth of a second.
  void handleNext() override { form.advance(10); }
  tessaly::PictureReference picture() override { return nullptr; }
  void run() override {}

  tessaly::headless::Form form;
  tessaly::String title;
  bool isRightToLeft = false;
  int gaps = 0;
  std::map<const tessaly::transparentBitmap*, tessaly::String> names;
  std::array<tessaly::String, 4> headings;
  tessaly::String listFont;
  tessaly::Long listFontSize = 0;
  std::vector<Event> events;
  std::array<tessaly::String, 3> status;

 private:
  std::map<const tessaly::transparentBitmap*, tessaly::PixelPoint> middles_;
};

}  // namespace showcase::tests
