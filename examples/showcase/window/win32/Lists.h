#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tessaly/base/Types.h"

/// Lists of rows, with headings.
namespace showcase {

struct ListHeading {
  std::wstring text;
  int width = 0;
  bool isOfNumbers = false;

  /// Sorted ascending 1, descending -1, or not 0.
  int sorted = 0;
};

/// A list as a child of a window.
HWND makeList(HWND parent);

/// Sets the headings, which make the columns where they are missing; columns keep their widths.
void setHeadings(HWND list, const std::vector<ListHeading>& headings);

/// A new row at the list's end, with whether it steps back.
void addRow(HWND list, const std::vector<tessaly::String>& cells, bool isMinor);
void removeRows(HWND list);

/// The selected row; -1 for none.
int selectedRow(HWND list);
void selectRow(HWND list, int row);

/// Shows the last row.
void scrollToEnd(HWND list);

/// Gives the last column what room the others leave.
void fitColumns(HWND list);

/// What a list answers where it asks how a row is drawn: minor ones fainter.
LRESULT colourOf(LPARAM notification);

/// Lays a list out from the right, or from the left again.
void mirrorList(HWND list, bool isFromRight);

}  // namespace showcase
