#include "tests/contract/MessagesWorld.h"

#include "tests/support/OwnRuntime.h"

namespace tessaly::tests {

using namespace platform;

MessagesWorld::MessagesWorld(Body body) {
  useOwnRuntime();
  if (body == Body::Fake) inForce_.emplace(fake_);
}

Messages& messages() { return *core().messages; }

std::uint32_t numberOf(const std::string& name) { return messages().RegisterWindowMessageA(name.c_str()); }

std::intptr_t send(WindowHandle window, const char* name, std::uintptr_t wParam, std::intptr_t lParam) {
  return messages().SendMessageA(window, numberOf(name), wParam, lParam);
}

bool isAlive(WindowHandle window) { return messages().GetWindowLongA(window, kWindowInstance) != 0; }

std::vector<WindowHandle> windowsThere() {
  thread_local std::vector<WindowHandle> found;
  found.clear();
  Long unused = 0;
  const auto keep = [](WindowHandle window, Long& /*value*/) -> Long {
    found.push_back(window);
    return 1;
  };
  return messages().EnumWindows(keep, unused) ? found : std::vector<WindowHandle>();
}

WindowHandle goneWindow() { return Receiver("gone").handle(); }

Receiver::Receiver(const std::string& title, Reaction reaction)
    : reaction_(std::move(reaction)), window_(messages().CreateWindowExA(title.c_str(), *this)) {}

std::intptr_t Receiver::handle(const SentMessage& message) noexcept {
  got_.push_back(message);
  return reaction_ ? reaction_(message) : usual(message);
}

std::intptr_t Receiver::usual(const SentMessage& message) const {
  if (message.number == numberOf(peer_message::kTell)) return resultOf(message.wParam, message.lParam);
  if (message.number == numberOf(peer_message::kBounce)) return bounce(message);
  if (message.number == numberOf(peer_message::kVanish)) return destroy() ? 5 : 0;
  return 0;
}

std::intptr_t Receiver::bounce(const SentMessage& message) const {
  if (message.lParam <= 0) return 1;
  return 1 + messages().SendMessageA(static_cast<WindowHandle>(message.wParam), message.number,
                                     static_cast<std::uintptr_t>(window_), message.lParam - 1);
}

}  // namespace tessaly::tests
