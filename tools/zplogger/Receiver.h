#pragma once

#include "tessaly/platform/Core.h"
#include "tools/zplogger/Listener.h"

namespace tessaly::zplogger {

/// The title by which clients find a logger.
inline constexpr const char* kServerTitle = "ZPLogger server";

/// The receiving end of the trace channel: a window that clients find by its title, and the way from their
/// messages to the records in the block. Made, run and destroyed on one thread, which is the listener's; the
/// areas of the platform that were in force when it was made, and the listener, must outlive it.
class Receiver final : private platform::MessageHandler {
 public:
  explicit Receiver(Listener& listener, const char* title = kServerTitle);
  Receiver(const Receiver&) = delete;
  Receiver& operator=(const Receiver&) = delete;
  ~Receiver() override;

  /// 0 where the window could not be made; then nothing will come.
  platform::WindowHandle window() const { return window_; }

  /// Hands on what clients send, until `stop`, or until the system asks the window to close.
  void run();

  /// Ends `run`, also one that begins later. Any thread may call.
  void stop();

 private:
  std::intptr_t handle(const platform::SentMessage& message) noexcept override;
  void handOn(const platform::SentMessage& message, const Sender& sender);

  void openBlock(std::uint32_t clientId);
  void closeBlock();

  Listener& listener_;
  platform::Messages& messages_;
  platform::SharedMemory& memory_;
  std::uint32_t addTrace_;
  std::uint32_t addClient_;
  std::uint32_t deleteClient_;

  /// The block that was used last.
  std::uint32_t clientId_ = 0;
  platform::MappingHandle mapping_ = 0;
  const void* view_ = nullptr;

  platform::WindowHandle window_;
};

}  // namespace tessaly::zplogger
