#pragma once

#include <string>
#include <vector>

#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/HtmlHelp.h"

namespace tessaly::platform::fake {

/// A viewer of help that shows nothing and keeps what was asked of it. Not for several threads at once.
class TESSALY_DESKTOP_API HtmlHelp final : public platform::HtmlHelp {
 public:
  struct Shown {
    WindowHandle owner = 0;
    std::string file;
    Long command = 0;
    Long data = 0;

    bool operator==(const Shown&) const = default;
  };

  struct Placed {
    WindowHandle window = 0;
    WindowHandle after = 0;
    Long x = 0;
    Long y = 0;
    Long width = 0;
    Long height = 0;
    std::uint32_t flags = 0;

    bool operator==(const Placed&) const = default;
  };

  /// From now on the viewer's window is this one: 1 at first, and with 0 the viewer fails.
  void answer(WindowHandle viewer) { viewer_ = viewer; }

  /// From now on `SetWindowPos` gives false.
  void failSetWindowPos() { placingFails_ = true; }

  /// The names of the calls in their order, such as "HtmlHelpA".
  const std::vector<std::string>& calls() const { return calls_; }

  /// What each of the calls was told, in their order.
  const std::vector<Shown>& shown() const { return shown_; }
  const std::vector<Placed>& placed() const { return placed_; }

  WindowHandle HtmlHelpA(WindowHandle owner, const char* file, Long command, Long data) override;
  bool SetWindowPos(WindowHandle window, WindowHandle after, Long x, Long y, Long width, Long height,
                    std::uint32_t flags) override;

 private:
  WindowHandle viewer_ = 1;
  bool placingFails_ = false;
  std::vector<std::string> calls_;
  std::vector<Shown> shown_;
  std::vector<Placed> placed_;
};

}  // namespace tessaly::platform::fake
