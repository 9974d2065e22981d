#include "tessaly/platform/Shell.h"

#include <strings.h>

#include <optional>
#include <string>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/linux/Opener.h"
#include "tessaly/platform/linux/Path.h"
#include "tessaly/platform/linux/ShellBody.h"

namespace tessaly::platform {
namespace {

/// Most openers hand over to a desktop and are gone by then.
constexpr std::chrono::milliseconds kMoment{500};

/// A text that begins with '-' names a file of the current folder, since no address begins so; as it is it
/// would be an option.
std::string argumentOf(const char* file) {
  const std::string text = pathBytes(fromAnsi(file)).value_or("");
  return text.starts_with('-') ? "./" + text : text;
}

/// Nothing stands for the current folder, as it does on the other platform.
std::optional<std::string> folderOf(const char* directory) {
  if (directory == nullptr || *directory == '\0') return std::nullopt;
  return pathBytes(fromAnsi(directory));
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

}  // namespace

std::intptr_t LinuxShell::ShellExecuteA(WindowHandle /*owner*/, const char* operation, const char* file,
                                        const char* /*parameters*/, const char* directory, Long /*show*/) {
  if (operation != nullptr && strcasecmp(operation, "open") != 0) return shell_result::kNoAssociation;
  if (file == nullptr) return shell_result::kFileNotFound;
  const auto opener = openerPath();
  if (!opener) throw RuntimeError(RuntimeError::EntryPointNotFound);
  return run(*opener, argumentOf(file), directory);
}

std::intptr_t LinuxShell::run(const std::string& opener, const std::string& argument,
                              const char* directory) const {
  const auto folder = folderOf(directory);
  const Opened opened = runOpener(opener, argument, folder ? folder->c_str() : nullptr, moment_);
  switch (opened.how) {
    case Opening::NotStarted:
      throw RuntimeError(RuntimeError::EntryPointNotFound);
    case Opening::NoFolder:
      return shell_result::kPathNotFound;
    case Opening::NoMemory:
      return shell_result::kOutOfMemory;
    case Opening::GoesOn:
      return shell_result::kSuccess;
    case Opening::Ended:
      break;
  }
  return resultOf(opened.code);
}

Shell& ownShell() {
  static LinuxShell shell(kMoment);
  return shell;
}

}  // namespace tessaly::platform
