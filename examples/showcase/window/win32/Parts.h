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

/// The font in which Windows writes its messages, a larger one, and another one of a size in points; 0 for
/// the usual one.
HFONT messageFont();
HFONT headingFont();
HFONT fontOf(const std::wstring& name, int points);

/// A child of a window of some class, without a place; and two of them: its line at the bottom, and its tool
/// tips.
HWND makeChild(HWND parent, const wchar_t* className, DWORD style);
HWND makeStatus(HWND parent);
HWND makeToolTips(HWND parent);

void setFont(HWND window, HFONT font);

/// Lays a child out from the right, or from the left again.
void mirror(HWND child, bool isFromRight);

/// Parts the line at the bottom, the first taking what room the others leave.
void fitStatus(HWND status, int width);

/// Adds a child to the tool tips, or changes what its tip says.
void setToolTip(HWND toolTips, HWND child, std::wstring text);

}  // namespace showcase
