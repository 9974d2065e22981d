#include "tessaly/trace/ZPLogerClientModule.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "tessaly/platform/Core.h"

namespace tessaly {
namespace {

constexpr std::string_view kTitle = "ZPLogger server";
constexpr Long kTitleBuffer = 1000;

}  // namespace

platform::WindowHandle foundWindow = 0;

platform::WindowHandle FindLoggerWindow() {
  Long unused = 0;
  foundWindow = 0;
  platform::core().messages->EnumWindows(&EnumLoggerWindow, unused);
  return foundWindow;
}

/// The title's bytes are looked at as they come: its beginning is ASCII, which is the same in every code
/// page.
Long EnumLoggerWindow(platform::WindowHandle window, Long& /*value*/) {
  std::array<char, kTitleBuffer> buffer{};
  buffer.fill(' ');
  platform::core().messages->GetWindowTextA(window, buffer.data(), kTitleBuffer);
  std::string_view title(buffer.data(), buffer.size());
  title.remove_prefix(std::min(title.find_first_not_of(' '), title.size()));
  if (!title.starts_with(kTitle)) return 1;
  foundWindow = window;
  return 0;
}

}  // namespace tessaly
