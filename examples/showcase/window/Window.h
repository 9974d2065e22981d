#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "examples/showcase/window/Dialog.h"
#include "examples/showcase/window/MenuItem.h"
#include "tessaly/controls/transparentBitmap.h"

namespace showcase {

/// One line of the list of events: when, on which button or of which command, what, and what came of it.
struct Event {
  std::array<tessaly::String, 4> cells;

  /// Whether the line may step back behind the others.
  bool isMinor = false;
};

/// What the grid shows.
struct Grid {
  struct Heading {
    tessaly::String text;

    /// Numbers stand at the end of their cells.
    bool isOfNumbers = false;
  };

  std::vector<Heading> headings;
  std::vector<std::vector<tessaly::String>> rows;

  /// By their places from 0; -1 for none.
  tessaly::Long selected = -1;
  tessaly::Long sortedColumn = -1;
  bool isDescending = false;
};

/// What the buttons of message boxes say.
struct BoxWords {
  tessaly::String ok;
  tessaly::String cancel;
  tessaly::String yes;
  tessaly::String no;
};

/// The side of a button on the tool bar, and the tool bar's colour, in pixels and as the control has colours.
inline constexpr tessaly::Long kButtonSide = 42;
inline constexpr tessaly::OLE_COLOR kToolBarColour = 0xF7F5F4;

/// What the window tells the tool; all are there before something can happen.
struct WindowHandlers {
  /// A menu's item was chosen, or a column's head clicked, by its place from 0.
  std::function<void(tessaly::Long id)> onCommand;
  std::function<void(tessaly::Long column)> onHeading;

  /// A key, by its number and with the bits of Shift 1, Ctrl 2 and Alt 4, before anybody else takes it; true
  /// where it is taken.
  std::function<bool(std::int16_t key, std::int16_t shift)> onKey;

  /// The user closes the window; false where it is to stay.
  std::function<bool()> onClose;
};

/// What the tool asks of its window, one body a platform: a menu, a tool bar, a grid, a list of events below
/// it, and a line that tells how things stand. Texts come as they are to be seen. All calls are for the
/// window's thread; what the library raises comes out of them.
struct Window {
  virtual ~Window() = default;

  WindowHandlers handlers;

  virtual tessaly::platform::WindowHandle handle() = 0;
  virtual void setTitle(std::u16string_view title) = 0;

  /// Which side all begins at; the left at first.
  virtual void setRightToLeft(bool isRightToLeft) = 0;

  /// What the buttons of message boxes say, where the platform lets a program have a say in it.
  virtual void setBoxWords(const BoxWords& words) = 0;

  /// The menus of the bar, in the place of those that were there.
  virtual void setMenu(const std::vector<MenuItem>& menus) = 0;

  /// A new square button at the tool bar's end, reached with Tab, which lasts as long as the window; and a
  /// gap between the one before and the next.
  virtual tessaly::transparentBitmap& addButton() = 0;
  virtual void addGap() = 0;

  /// What a button is called: in its tool tip, and to assistive technology.
  virtual void nameButton(const tessaly::transparentBitmap& button, std::u16string_view name) = 0;

  virtual void setGrid(const Grid& grid) = 0;

  /// The selected row of the grid by its place, -1 for none.
  virtual tessaly::Long selectedRow() = 0;

  /// The grid's font where one is named; 0 is the usual size, in points.
  virtual void setGridFont(std::u16string_view name, tessaly::Long points) = 0;

  /// The list of events: its headings, all of its lines, and a further line, which is shown.
  virtual void setEventHeadings(const std::array<tessaly::String, 4>& headings) = 0;
  virtual void setEvents(const std::vector<Event>& events) = 0;
  virtual void addEvent(const Event& event) = 0;

  /// The line at the bottom in three parts, of which the first has most of the room.
  virtual void setStatus(const std::array<tessaly::String, 3>& parts) = 0;

  /// Shows a dialog before the window and waits until it closes; the button that closed it.
  virtual tessaly::Long runDialog(Dialog& dialog) = 0;

  /// Closes the window, as where its user does so.
  virtual void close() = 0;

  /// What a user does: chooses a menu's item, clicks a column's head; moves the pointer onto a button,
  /// presses and releases it, or holds it down with the keyboard, which has the focus then, until he lets go;
  /// what is held already stays held.
  virtual void choose(tessaly::Long id) = 0;
  virtual void clickHeading(tessaly::Long column) = 0;
  virtual void point(const tessaly::transparentBitmap& button) = 0;
  virtual void press(const tessaly::transparentBitmap& button) = 0;
  virtual void hold(const tessaly::transparentBitmap& button) = 0;
  virtual void release(const tessaly::transparentBitmap& button) = 0;

  /// What he does in the dialog that opens next, as soon as it is there.
  virtual void visitNextDialog(DialogVisit visit) = 0;

  /// Waits for what happens next, and lets it happen.
  virtual void handleNext() = 0;

  /// The window without its frame, as it is seen now; and the viewer of help, none where it can't be drawn.
  virtual tessaly::PictureReference picture() = 0;
  virtual tessaly::PictureReference helpPicture() = 0;

  /// Lets all happen until the window is closed.
  virtual void run() = 0;
};

}  // namespace showcase
