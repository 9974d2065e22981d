#pragma once

#include <array>
#include <string_view>

#include "tessaly/controls/transparentBitmap.h"

namespace showcase {

/// One line of the list of events: when, on which button, which event, and what came of it.
struct Event {
  std::array<tessaly::String, 4> cells;

  /// Whether the line may step back behind the others.
  bool isMinor = false;
};

/// The side of a button on the tool bar, and the tool bar's colour, in pixels and as the control has colours.
inline constexpr tessaly::Long kButtonSide = 42;
inline constexpr tessaly::OLE_COLOR kToolBarColour = 0xF7F5F4;

/// What the tool asks of its window, one body a platform: a tool bar, a list of events below it, and a line
/// that tells how things stand. Texts come as they are to be seen. All calls are for the window's thread;
/// what the library raises comes out of them.
struct Window {
  virtual ~Window() = default;

  virtual void setTitle(std::u16string_view title) = 0;

  /// Which side all begins at; the left at first.
  virtual void setRightToLeft(bool isRightToLeft) = 0;

  /// A new square button at the tool bar's end, reached with Tab, which lasts as long as the window; and a
  /// gap between the one before and the next.
  virtual tessaly::transparentBitmap& addButton() = 0;
  virtual void addGap() = 0;

  /// What a button is called: in its tool tip, and to assistive technology.
  virtual void nameButton(const tessaly::transparentBitmap& button, std::u16string_view name) = 0;

  /// The headings of the list, and its font where one is named; 0 is the usual size, in points.
  virtual void setColumns(const std::array<tessaly::String, 4>& headings) = 0;
  virtual void setListFont(std::u16string_view name, tessaly::Long points) = 0;

  /// Adds a line at the list's end and shows it.
  virtual void addEvent(const Event& event) = 0;

  /// The line at the bottom in three parts, of which the first has most of the room.
  virtual void setStatus(const std::array<tessaly::String, 3>& parts) = 0;

  /// What a user does: moves the pointer onto a button, presses and releases it, or holds it down with the
  /// keyboard, which has the focus then, until he lets go; what is held already stays held.
  virtual void point(const tessaly::transparentBitmap& button) = 0;
  virtual void press(const tessaly::transparentBitmap& button) = 0;
  virtual void hold(const tessaly::transparentBitmap& button) = 0;
  virtual void release(const tessaly::transparentBitmap& button) = 0;

  /// Waits for what happens next, and lets it happen.
  virtual void handleNext() = 0;

  /// The window without its frame, as it is seen now.
  virtual tessaly::PictureReference picture() = 0;

  /// Lets all happen until the user closes the window.
  virtual void run() = 0;
};

}  // namespace showcase
