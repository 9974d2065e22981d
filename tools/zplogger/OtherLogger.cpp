#include "tools/zplogger/OtherLogger.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "tessaly/platform/Core.h"
#include "tools/zplogger/Receiver.h"

namespace tessaly::zplogger {
namespace {

/// As clients look at titles: blanks before the name and whatever stands behind it do not matter to them.
Long lookAtWindow(platform::WindowHandle window, Long& isFound) {
  std::array<char, 1000> buffer{};
  const Long length =
      platform::core().messages->GetWindowTextA(window, buffer.data(), static_cast<Long>(buffer.size()));
  std::string_view title(buffer.data(), static_cast<std::size_t>(length));
  title.remove_prefix(std::min(title.find_first_not_of(' '), title.size()));
  if (!title.starts_with(kServerTitle)) return 1;
  isFound = 1;
  return 0;
}

}  // namespace

bool isLoggerThere() {
  Long isFound = 0;
  platform::core().messages->EnumWindows(&lookAtWindow, isFound);
  return isFound != 0;
}

}  // namespace tessaly::zplogger
