#include "tessaly/platform/Shell.h"

#include <strings.h>

#include <string>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/linux/Opener.h"
#include "tessaly/platform/linux/Path.h"

namespace tessaly::platform {
namespace {

/// A text that begins with '-' names a file of the current folder, since no address begins so; as it is it
/// would be an option.
std::string argumentOf(const char* file) {
  const std::string text = pathBytes(fromAnsi(file)).value_or("");
  return text.starts_with('-') ? "./" + text : text;
}

/// The opener's documented exit codes.
std::intptr_t resultOf(int code) {
  switch (code) {
    case 0:
      return shell_result::kSuccess;
    case 1:  // There was nothing to open.
    case 2:
      return shell_result::kFileNotFound;
    default:
      return shell_result::kNoAssociation;
  }
}

class LinuxShell final : public Shell {
 public:
  std::intptr_t ShellExecuteA(WindowHandle /*owner*/, const char* operation, const char* file,
                              const char* /*parameters*/, const char* directory, Long /*show*/) override {
    if (operation != nullptr && strcasecmp(operation, "open") != 0) return shell_result::kNoAssociation;
    if (file == nullptr) return shell_result::kFileNotFound;
    const auto opener = openerPath();
    if (!opener) throw RuntimeError(RuntimeError::EntryPointNotFound);
    return open(*opener, argumentOf(file), directory);
  }

 private:
  static std::intptr_t open(const std::string& opener, const std::string& argument, const char* directory) {
    const auto folder = directory != nullptr ? pathBytes(fromAnsi(directory)) : std::nullopt;
    const Opened opened = runOpener(opener, argument, folder ? folder->c_str() : nullptr);
    switch (opened.how) {
      case Opening::NotStarted:
        throw RuntimeError(RuntimeError::EntryPointNotFound);
      case Opening::NoMemory:
        return shell_result::kOutOfMemory;
      case Opening::GoesOn:
        return shell_result::kSuccess;
      case Opening::Ended:
        break;
    }
    return resultOf(opened.code);
  }
};

}  // namespace

Shell& ownShell() {
  static LinuxShell shell;
  return shell;
}

}  // namespace tessaly::platform
