#pragma once

#include <windows.h>

#include "examples/showcase/window/Dialog.h"

/// The rows of a dialog as windows.
namespace showcase {

/// A row's window and the label before it, where it has one, with their measures in pixels.
struct Row {
  HWND label = nullptr;
  HWND window = nullptr;
  int labelWidth = 0;
  int height = 0;

  /// 0 for all the room there is.
  int width = 0;
};

/// The fonts of a dialog.
struct DialogFonts {
  HFONT usual;
  HFONT heading;
};

/// The width of what a row holds where it has all of the dialog.
inline constexpr int kRowWidth = 480;

/// Makes a row's windows as children of a dialog, without their places and what stands in them.
Row makeRow(HWND dialog, const Field& field, int id, const DialogFonts& fonts);

/// How much room a text takes in a font, in lines of at most a width.
SIZE sizeOf(HWND window, HFONT font, const std::wstring& text, int width);

/// What stands in a row, to its window and from it.
void show(const Field& field, HWND window);
void read(Field& field, HWND window);

}  // namespace showcase
