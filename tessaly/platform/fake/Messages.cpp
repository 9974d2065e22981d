#include "tessaly/platform/fake/Messages.h"

#include <algorithm>
#include <string_view>

namespace tessaly::platform::fake {
namespace {

constexpr std::size_t kLongestName = 255;

char upperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

bool Messages::fails(const char* call) {
  calls_.emplace_back(call);
  return failing_.contains(call);
}

std::uint32_t Messages::RegisterWindowMessageA(const char* name) {
  std::string key = name != nullptr ? name : "";
  if (fails(__func__) || key.empty() || key.size() > kLongestName) return 0;
  std::transform(key.begin(), key.end(), key.begin(), upperAscii);
  const auto next = static_cast<std::uint32_t>(kFirstRegistered + numbers_.size());
  return numbers_.try_emplace(key, next).first->second;
}

std::intptr_t Messages::SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t wParam,
                                     std::intptr_t lParam) {
  if (fails(__func__)) return 0;
  const auto receiver = windows_.find(window);
  if (receiver == windows_.end() || message < kFirstRegistered) return 0;
  const std::intptr_t result = receiver->second.handler->handle({message, wParam, lParam, sender_});
  return windows_.contains(window) ? result : 0;
}

Long Messages::GetWindowLongA(WindowHandle window, Long index) {
  return !fails(__func__) && index == kWindowInstance && windows_.contains(window) ? 1 : 0;
}

bool Messages::EnumWindows(WindowCallback callback, Long& value) {
  if (fails(__func__)) return false;
  std::vector<WindowHandle> handles;
  for (const auto& [handle, window] : windows_) handles.insert(handles.begin(), handle);
  return std::all_of(handles.begin(), handles.end(),
                     [&](WindowHandle handle) { return callback(handle, value) != 0; });
}

Long Messages::GetWindowTextA(WindowHandle window, char* buffer, Long size) {
  const auto titled = windows_.find(window);
  if (fails(__func__) || size <= 0) return 0;
  const std::string_view title = titled != windows_.end() ? titled->second.title : std::string_view();
  const std::string_view shown = title.substr(0, static_cast<std::size_t>(size) - 1);
  *std::copy(shown.begin(), shown.end(), buffer) = '\0';
  return static_cast<Long>(shown.size());
}

WindowHandle Messages::CreateWindowExA(const char* title, MessageHandler& handler) {
  if (fails(__func__)) return 0;
  while (windows_.contains(next_)) ++next_;
  windows_[next_] = {title, &handler};
  return next_++;
}

bool Messages::DestroyWindow(WindowHandle window) { return !fails(__func__) && windows_.erase(window) != 0; }

std::uint32_t Messages::GetMessageA() {
  if (fails(__func__) || posted_.empty()) return kQuit;
  const std::uint32_t message = posted_.front();
  posted_.pop_front();
  return message;
}

bool Messages::PostMessageA(WindowHandle window, std::uint32_t message) {
  if (fails(__func__) || !windows_.contains(window)) return false;
  posted_.push_back(message);
  return true;
}

}  // namespace tessaly::platform::fake
