#pragma once

#include <cstdint>

#include "tessaly/base/Types.h"
#include "tessaly/platform/Messages.h"

namespace tessaly::platform {

/// The results of `ShellExecuteA`, by the platform's own numbers: all above `kLastFailure` are successes.
namespace shell_result {
inline constexpr std::intptr_t kFileNotFound = 2;
inline constexpr std::intptr_t kPathNotFound = 3;
inline constexpr std::intptr_t kAccessDenied = 5;
inline constexpr std::intptr_t kOutOfMemory = 8;
inline constexpr std::intptr_t kNoAssociation = 31;
inline constexpr std::intptr_t kLastFailure = 32;
inline constexpr std::intptr_t kSuccess = 42;
}  // namespace shell_result

/// For `ShellExecuteA`: as a window is shown that nobody has told otherwise.
inline constexpr Long kShowNormal = 1;

/// What opens files and addresses, by the platform's own call. Texts are 8-bit text in the system's code page
/// and end with a NUL.
struct Shell {
  virtual ~Shell() = default;

  /// Does the operation, of which "open" is known everywhere, on a file or an address; null is "open" too.
  /// Parameters and directory may be null: there are none, and it is the current one. The owner is the window
  /// for what the shell shows, 0 for none. A number of `shell_result`, or another of the platform's; whoever
  /// was told to open it may still find that he can't. Raises error 453 where the platform has no such call;
  /// else nothing but for want of memory. It may take as long as the shell takes.
  virtual std::intptr_t ShellExecuteA(WindowHandle owner, const char* operation, const char* file,
                                      const char* parameters, const char* directory, Long show) = 0;
};

}  // namespace tessaly::platform
