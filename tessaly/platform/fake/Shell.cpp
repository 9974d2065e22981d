#include "tessaly/platform/fake/Shell.h"

#include "tessaly/base/RuntimeError.h"

namespace tessaly::platform::fake {
namespace {

std::optional<std::string> given(const char* text) {
  return text != nullptr ? std::optional<std::string>(text) : std::nullopt;
}

}  // namespace

std::intptr_t Shell::ShellExecuteA(WindowHandle owner, const char* operation, const char* file,
                                   const char* parameters, const char* directory, Long show) {
  const Opened call{owner, given(operation), given(file), given(parameters), given(directory), show};
  opened_.push_back(call);
  const auto look = look_;
  if (look) look(call);
  if (error_ != 0) throw RuntimeError(error_);
  return result_;
}

}  // namespace tessaly::platform::fake
