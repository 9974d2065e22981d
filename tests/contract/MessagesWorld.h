#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Messages.h"
#include "tests/contract/PeerWords.h"
#include "tests/support/World.h"

namespace tessaly::tests {

/// Why tests of titles of windows that are gone are left out there.
inline constexpr const char* kWineTitles = "Wine: it shows what happens to be in memory as their title";

/// The body of the area Messages that a contract runs on, in force as long as the world lives.
class MessagesWorld {
 public:
  explicit MessagesWorld(Body body);

 private:
  platform::fake::Messages fake_;
  std::optional<platform::Override> inForce_;
};

platform::Messages& messages();
std::uint32_t numberOf(const std::string& name);
std::intptr_t send(platform::WindowHandle window, const char* name, std::uintptr_t wParam = 0,
                   std::intptr_t lParam = 0);
bool isAlive(platform::WindowHandle window);

/// All that an enumeration shows.
std::vector<platform::WindowHandle> windowsThere();

/// The number of a window that has gone.
platform::WindowHandle goneWindow();

/// A window that does what `peer_message` tells, or what else a test wants, and keeps what it got; it goes
/// with this object, on the thread that has made it.
class Receiver final : public platform::MessageHandler {
 public:
  using Reaction = std::function<std::intptr_t(const platform::SentMessage&)>;

  explicit Receiver(const std::string& title, Reaction reaction = {});
  Receiver(const Receiver&) = delete;
  Receiver& operator=(const Receiver&) = delete;
  ~Receiver() override { destroy(); }

  void onMessage(Reaction reaction) { reaction_ = std::move(reaction); }

  platform::WindowHandle handle() const { return window_; }
  const std::vector<platform::SentMessage>& got() const { return got_; }
  bool destroy() const { return messages().DestroyWindow(window_); }

  /// What it does where no reaction is given.
  std::intptr_t usual(const platform::SentMessage& message) const;

  std::intptr_t handle(const platform::SentMessage& message) noexcept override;

 private:
  std::intptr_t bounce(const platform::SentMessage& message) const;

  Reaction reaction_;
  platform::WindowHandle window_;
  std::vector<platform::SentMessage> got_;
};

}  // namespace tessaly::tests
