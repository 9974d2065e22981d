#pragma once

#include <functional>
#include <string_view>

#include "examples/showcase/window/Saying.h"
#include "examples/showcase/window/Window.h"

namespace showcase {

/// Where the tool speaks with its user: message boxes, dialogs and help, in the language in force. What it
/// does is told.
class Desk {
 public:
  /// The flags of message boxes: something is wrong, mind this, and two questions whose answer at Return is
  /// No, the second of them with a question mark.
  static constexpr tessaly::Long kTell = 0;
  static constexpr tessaly::Long kError = 0x10;
  static constexpr tessaly::Long kWarning = 0x30;
  static constexpr tessaly::Long kConfirm = 0x104;
  static constexpr tessaly::Long kQuestion = 0x124;

  using Tell = std::function<void(std::u16string_view event, const Saying& comment)>;

  /// Window and catalogue must outlive this.
  Desk(Window& window, tessaly::CResources& resources, Tell tell)
      : window_(window), resources_(resources), tell_(std::move(tell)) {}

  tessaly::CResources& resources() const { return resources_; }

  /// A message box; the number of the button.
  tessaly::Long show(tessaly::Long flags, const Saying& text) const;

  /// A question's answer is Yes.
  bool ask(tessaly::Long flags, const Saying& question) const;

  /// A page of help, before the others on the screen.
  void showHelp(tessaly::platform::WindowHandle owner, std::u16string_view page) const;

  /// Whether a key asks for help on a page, which is shown then.
  bool helpKey(std::int16_t key, std::int16_t shift, tessaly::platform::WindowHandle owner,
               std::u16string_view page) const;

  /// Runs a dialog, which gets a button that cancels and one for its page of help, that F1 shows too. Other
  /// buttons close it where `accepts` says so. The button that closed it.
  tessaly::Long run(Dialog& dialog, std::u16string_view page,
                    const std::function<bool(tessaly::Long button)>& accepts) const;

  /// The address that a link opens is told.
  void tellLink(std::u16string_view address) const;

 private:
  Window& window_;
  tessaly::CResources& resources_;
  Tell tell_;
};

}  // namespace showcase
