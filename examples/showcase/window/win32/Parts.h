#pragma once

#include <windows.h>

#include <array>
#include <string>

/// The parts that the window is made of, and how they look.
namespace showcase {

/// In pixels: the room around the buttons, between them, between groups, and the tool bar with its lower
/// line.
inline constexpr int kMargin = 6;
inline constexpr int kSpacing = 2;
inline constexpr int kGroupGap = 16;
inline constexpr int kToolBarHeight = 55;

inline constexpr COLORREF kLineColour = RGB(0xD3, 0xD8, 0xDF);
inline constexpr COLORREF kInk = RGB(0x22, 0x2B, 0x36);
inline constexpr COLORREF kFaint = RGB(0x8A, 0x93, 0x9E);

/// Fills an area with a colour.
void fill(HDC context, const RECT& area, COLORREF colour);

/// The font in which Windows writes its messages, or another one of a size in points; 0 for the usual one.
HFONT messageFont();
HFONT fontOf(const std::wstring& name, int points);

/// Children of the window: a list of four columns, its line at the bottom, and its tool tips.
HWND makeList(HWND parent);
HWND makeStatus(HWND parent);
HWND makeToolTips(HWND parent);

/// Sets a column's heading, which makes it where it is missing.
void setColumn(HWND list, int column, std::wstring heading);

/// A new row at the list's end, with whether it steps back; its number.
int addRow(HWND list, bool isMinor);
void setCell(HWND list, int row, int column, std::wstring text);

/// Gives the last column what room the others leave.
void fitColumns(HWND list);

/// Parts the line at the bottom, the first taking what room the others leave.
void fitStatus(HWND status, int width);

/// Adds a child to the tool tips, or changes what its tip says.
void setToolTip(HWND toolTips, HWND child, std::wstring text);

}  // namespace showcase
