#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "examples/showcase/window/Window.h"
#include "tessaly/hosts/win32/Handles.h"

namespace showcase {

/// The window by Windows itself.
class Win32Window final : public Window {
 public:
  /// `show` is what ShowWindow takes.
  explicit Win32Window(int show);
  Win32Window(const Win32Window&) = delete;
  Win32Window& operator=(const Win32Window&) = delete;
  ~Win32Window() override;

  tessaly::platform::WindowHandle handle() override;
  void setTitle(std::u16string_view title) override;
  void setRightToLeft(bool isRightToLeft) override;
  void setBoxWords(const BoxWords& /*words*/) override {}  // the system's boxes speak the system's language
  void setMenu(const std::vector<MenuItem>& menus) override;
  tessaly::transparentBitmap& addButton() override;
  void addGap() override;
  void nameButton(const tessaly::transparentBitmap& button, std::u16string_view name) override;
  void setGrid(const Grid& grid) override;
  tessaly::Long selectedRow() override;
  void setGridFont(std::u16string_view name, tessaly::Long points) override;
  void setEventHeadings(const std::array<tessaly::String, 4>& headings) override;
  void setEvents(const std::vector<Event>& events) override;
  void addEvent(const Event& event) override;
  void setStatus(const std::array<tessaly::String, 3>& parts) override;
  tessaly::Long runDialog(Dialog& dialog) override;
  void close() override;
  void choose(tessaly::Long id) override;
  void clickHeading(tessaly::Long column) override;
  void point(const tessaly::transparentBitmap& button) override;
  void press(const tessaly::transparentBitmap& button) override;
  void hold(const tessaly::transparentBitmap& button) override;
  void release(const tessaly::transparentBitmap& button) override;
  void visitNextDialog(DialogVisit visit) override { visit_ = std::move(visit); }
  void handleNext() override;
  tessaly::PictureReference picture() override;
  tessaly::PictureReference helpPicture() override { return nullptr; }
  void run() override;

 private:
  /// A button with its distance from the tool bar's beginning.
  struct Placed {
    HWND window;
    int distance;
  };

  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> answer(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> take(const NMHDR& notification);
  bool takeKey(const MSG& message) const;
  void paintToolBar(HDC context) const;
  void closeNow();
  void layOut();
  void keepFocus();
  HWND windowOf(const tessaly::transparentBitmap& button) const;
  int width() const;

  HWND window_ = nullptr;
  HWND grid_ = nullptr;
  HWND events_ = nullptr;
  HWND status_ = nullptr;
  HWND toolTips_ = nullptr;

  /// The child that has the focus where the window is used again.
  HWND focus_ = nullptr;
  tessaly::win32::OwnedFont gridFont_;
  tessaly::win32::OwnedFont font_;
  std::vector<Placed> buttons_;
  std::vector<int> lines_;
  int nextDistance_;
  bool isFromRight_ = false;
  bool isClosed_ = false;
  DialogVisit visit_;
};

}  // namespace showcase
