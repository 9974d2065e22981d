#pragma once

#include <map>
#include <vector>

#include "examples/showcase/window/Window.h"
#include "tessaly/controls/URLLink.h"
#include "tessaly/forms/headless/Form.h"

namespace showcase::tests {

/// A window without a display, which keeps what it is told.
class FakeWindow final : public Window {
 public:
  tessaly::platform::WindowHandle handle() override { return kHandle; }
  void setTitle(std::u16string_view text) override { title = text; }
  void setRightToLeft(bool isIt) override { isRightToLeft = isIt; }
  void setBoxWords(const BoxWords& words) override { boxWords = words; }
  void setMenu(const std::vector<MenuItem>& all) override { menus = all; }
  tessaly::transparentBitmap& addButton() override;
  void addGap() override { ++gaps; }
  void nameButton(const tessaly::transparentBitmap& button, std::u16string_view name) override;
  void setGrid(const Grid& shown) override { grid = shown; }
  tessaly::Long selectedRow() override { return grid.selected; }
  void setGridFont(std::u16string_view name, tessaly::Long points) override;
  void setEventHeadings(const std::array<tessaly::String, 4>& texts) override { headings = texts; }
  void setEvents(const std::vector<Event>& all) override { events = all; }
  void addEvent(const Event& event) override { events.push_back(event); }
  void setStatus(const std::array<tessaly::String, 3>& parts) override { status = parts; }
  tessaly::Long runDialog(Dialog& dialog) override;
  void close() override { isClosed = handlers.onClose(); }
  void choose(tessaly::Long id) override;
  void clickHeading(tessaly::Long column) override { handlers.onHeading(column); }
  void point(const tessaly::transparentBitmap& button) override;
  void press(const tessaly::transparentBitmap& button) override;
  void hold(const tessaly::transparentBitmap& button) override;
  void release(const tessaly::transparentBitmap& button) override;
  void visitNextDialog(DialogVisit visit) override { visit_ = std::move(visit); }

  /// Time goes on by a hundredth of a second.
  void handleNext() override { form.advance(10); }
  tessaly::PictureReference picture() override { return nullptr; }
  tessaly::PictureReference helpPicture() override { return nullptr; }
  void run() override {}

  /// An item of the menus by its id; none where there is no such item.
  const MenuItem* find(tessaly::Long id) const;

  /// All texts of a dialog, with the link's.
  static std::vector<tessaly::String> textsOf(const Dialog& dialog);

  static constexpr tessaly::platform::WindowHandle kHandle = 77;
  static constexpr tessaly::platform::WindowHandle kDialogHandle = 78;

  tessaly::headless::Form form;
  tessaly::String title;
  BoxWords boxWords;
  bool isRightToLeft = false;
  bool isClosed = false;
  int gaps = 0;
  std::vector<MenuItem> menus;
  std::map<const tessaly::transparentBitmap*, tessaly::String> names;
  Grid grid;
  tessaly::String gridFont;
  tessaly::Long gridFontSize = 0;
  std::array<tessaly::String, 4> headings;
  std::vector<Event> events;
  std::array<tessaly::String, 3> status;

  /// The dialogs that were shown, as they were at first, and the link of the last one.
  std::vector<Dialog> dialogs;
  tessaly::String linkText;

 private:
  std::map<const tessaly::transparentBitmap*, tessaly::PixelPoint> middles_;
  DialogVisit visit_;
};

}  // namespace showcase::tests
