#pragma once

#include <chrono>
#include <string>

#include "tessaly/platform/Shell.h"

namespace tessaly::platform {

/// Opens by the desktop's opener, of which "open" is the one operation. Any thread may call.
class LinuxShell final : public Shell {
 public:
  /// How long a call waits for the opener's end.
  explicit LinuxShell(std::chrono::nanoseconds moment) : moment_(moment) {}

  std::intptr_t ShellExecuteA(WindowHandle owner, const char* operation, const char* file,
                              const char* parameters, const char* directory, Long show) override;

 private:
  std::intptr_t run(const std::string& opener, const std::string& argument, const char* directory) const;

  std::chrono::nanoseconds moment_;
};

}  // namespace tessaly::platform
