#pragma once

#include <string>
#include <vector>

#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/MessageBoxes.h"
#include "tessaly/platform/fake/Shell.h"

namespace showcase {

/// Help that is kept in mind, and shown where nobody need see it.
class RecordedHelp final : public tessaly::platform::HtmlHelp {
 public:
  explicit RecordedHelp(bool isShown) : shown_(isShown ? tessaly::platform::desktop().htmlHelp : nullptr) {}

  /// What was asked for: a file, and the page in it.
  const std::vector<std::string>& asked() const { return asked_; }

  tessaly::platform::WindowHandle HtmlHelpA(tessaly::platform::WindowHandle owner, const char* file,
                                            tessaly::Long command, tessaly::Long data) override;
  bool SetWindowPos(tessaly::platform::WindowHandle window, tessaly::platform::WindowHandle after,
                    tessaly::Long x, tessaly::Long y, tessaly::Long width, tessaly::Long height,
                    std::uint32_t flags) override;

 private:
  tessaly::platform::HtmlHelp* shown_;
  std::vector<std::string> asked_;
};

/// What stands in the place of the user's desktop where nobody looks: boxes are answered with their default
/// buttons, links are not opened, and help is kept in mind.
struct Unseen {
  explicit Unseen(bool showsHelp) : help(showsHelp) {}

  tessaly::platform::fake::MessageBoxes boxes;
  tessaly::platform::fake::Shell shell;
  RecordedHelp help;
  tessaly::platform::Override boxesInForce{boxes};
  tessaly::platform::Override shellInForce{shell};
  tessaly::platform::Override helpInForce{help};
};

}  // namespace showcase
