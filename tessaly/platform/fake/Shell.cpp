#include "tessaly/platform/fake/Shell.h"

#include <algorithm>
#include <string_view>

#include "tessaly/base/RuntimeError.h"

namespace tessaly::platform::fake {
namespace {

std::optional<std::string> given(const char* text) {
  return text != nullptr ? std::optional<std::string>(text) : std::nullopt;
}

/// Operations are known in any case.
bool isOpen(std::string_view operation) {
  constexpr std::string_view known = "open";
  return std::equal(operation.begin(), operation.end(), known.begin(), known.end(),
                    [](char given, char wanted) { return given == wanted || given == wanted - 'a' + 'A'; });
}

}  // namespace

std::intptr_t Shell::resultOf(const Opened& call) const {
  if (result_) return *result_;
  if (!isOpen(call.operation.value_or("open"))) return shell_result::kNoAssociation;
  if (!call.file) return shell_result::kFileNotFound;
  const auto told = resultsOfFiles_.find(*call.file);
  return told != resultsOfFiles_.end() ? told->second : shell_result::kSuccess;
}

std::intptr_t Shell::ShellExecuteA(WindowHandle owner, const char* operation, const char* file,
                                   const char* parameters, const char* directory, Long show) {
  const Opened call{owner, given(operation), given(file), given(parameters), given(directory), show};
  opened_.push_back(call);
  const auto look = look_;
  if (look) look(call);
  if (error_ != 0) throw RuntimeError(error_);
  return resultOf(call);
}

}  // namespace tessaly::platform::fake
