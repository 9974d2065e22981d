#pragma once

#include <cstdint>

#include "tessaly/base/Types.h"
#include "tessaly/platform/Messages.h"

namespace tessaly::platform {

/// What `HtmlHelpA` is to do, by the platform's own numbers.
namespace help_command {
inline constexpr Long kDisplayTopic = 0;
inline constexpr Long kDisplayContents = 1;
inline constexpr Long kDisplayIndex = 2;
inline constexpr Long kShowMapNumber = 15;
inline constexpr Long kCloseAll = 18;
}  // namespace help_command

/// For `SetWindowPos`: before all windows that are not there too.
inline constexpr WindowHandle kTopMost = -1;

/// What `SetWindowPos` leaves as it is, in bits.
inline constexpr std::uint32_t kKeepSize = 0x1;
inline constexpr std::uint32_t kKeepPosition = 0x2;
inline constexpr std::uint32_t kNoRedraw = 0x8;

/// The viewer of help files, by the platform's own calls. File names are 8-bit text in the system's code page
/// that ends with a NUL; "::/" and the name of a page may stand behind them. No call throws but for want of
/// memory. The thread of the user interface calls.
struct HtmlHelp {
  virtual ~HtmlHelp() = default;

  /// Does what a number of `help_command` tells: the viewer's window, which outlives its caller, or 0 where
  /// nothing is shown. What is not there is the viewer's to tell the user. Without a viewer it is 0, and
  /// nothing happens.
  virtual WindowHandle HtmlHelpA(WindowHandle owner, const char* file, Long command, Long data) = 0;

  /// Puts a window behind another, or into the band of `kTopMost`, and sizes it, but for what the flags keep;
  /// false where it fails.
  virtual bool SetWindowPos(WindowHandle window, WindowHandle after, Long x, Long y, Long width, Long height,
                            std::uint32_t flags) = 0;
};

}  // namespace tessaly::platform
