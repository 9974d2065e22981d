#pragma once

#include <windows.h>

#include <vector>

#include "examples/showcase/window/win32/Fields.h"
#include "tessaly/hosts/win32/Handles.h"

namespace showcase {

/// A dialog by Windows itself.
class DialogWindow final : public DialogUser {
 public:
  /// The description must outlive this. The visit, which may be none, is paid as soon as the dialog is there.
  DialogWindow(Dialog& dialog, DialogVisit visit);

  /// Shows it before a window, from the right where that is asked for; the button that closed it.
  tessaly::Long run(HWND owner, bool isFromRight);

  void write(std::size_t field, std::u16string_view text) override;
  void choose(std::size_t field, tessaly::Long number) override;
  void click(std::size_t field) override;
  void key(std::int16_t key, std::int16_t shift) override;
  tessaly::PictureReference picture() override;
  void press(tessaly::Long button) override;

 private:
  static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  bool handle(UINT message, WPARAM wParam);
  void fill();
  int placeRows();
  int placeButtons(int top);
  void command(int id, int notification);
  void readFields();
  void writeFields();

  Dialog& dialog_;
  DialogVisit visit_;
  HWND window_ = nullptr;
  tessaly::win32::OwnedFont usual_;
  tessaly::win32::OwnedFont heading_;
  std::vector<Row> rows_;
};

}  // namespace showcase
