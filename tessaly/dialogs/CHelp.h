#pragma once

#include <cstdint>
#include <string_view>

#include "tessaly/base/Types.h"
#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/Messages.h"

namespace tessaly {

/// Opens pages of the library's help file in the platform's viewer. A host makes an object where help is
/// asked for, calls it on the thread of its windows, and lets it go; the viewer's window stays. Nothing that
/// fails is reported: where help is missing, the viewer tells the user. Names of files and pages pass through
/// the system's 8-bit code page.
class TESSALY_DESKTOP_API CHelp {
 public:
  /// The help file is "Tessaly.chm" in the folder that the machine's settings name as "Path" at
  /// "SOFTWARE\BRAMWELD SYSTEM\Tessaly"; without one it is at the root. The folder is asked for here alone.
  CHelp();
  CHelp(const CHelp&) = default;
  CHelp& operator=(const CHelp&) = default;

  /// Opens a page: its name without folder and ending, and where in it, which may be empty. With contents,
  /// the viewer shows the table of contents beside it. On top, the viewer's window stands before all others.
  /// The owner is the window that asks, 0 for none.
  virtual void ShowTopic(platform::WindowHandle owner, std::u16string_view topic, std::u16string_view anchor,
                         Boolean contents, Boolean onTop);

  /// Opens the page that the help file's map has for a number. The window is not used.
  virtual void ShowTopicByMap(platform::WindowHandle window, Long mapNumber);

  /// Whether a key asks for help: F1, code 112, with none of Shift, Ctrl and Alt. It shows nothing.
  virtual Boolean HelpKey(std::int16_t keyCode, std::int16_t shift) const;

  /// Opens the help file's index.
  virtual void DisplayIndex(platform::WindowHandle owner);

  /// Closes all windows of help that this process has open.
  virtual void CloseHelp();

  /// A text that is the host's own; nothing here looks at it. Empty at first.
  virtual void currentHelpPage(std::u16string_view page);
  virtual String currentHelpPage() const;

  virtual ~CHelp();

 private:
  String helpFile_;
  String currentHelpPage_;
};

}  // namespace tessaly
