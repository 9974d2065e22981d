#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>

#include "tessaly/platform/linux/Endpoint.h"
#include "tessaly/platform/linux/Packets.h"
#include "tessaly/platform/linux/PostedMessages.h"

namespace tessaly::platform {

/// Has a handler take what a process has sent; what is no registered message is not for handlers and gives 0.
std::intptr_t handOver(const MessagePacket& packet, std::uint32_t sender, MessageHandler& handler);

/// The windows of one thread, their connections from senders, and what comes in. A handler may make and
/// destroy windows and fork while a message is under way, so nothing is held across it but numbers. In the
/// child of a fork all descriptors are closed; the windows are let go there when they are next asked for.
class ThreadWindows {
 public:
  ThreadWindows() = default;
  ThreadWindows(const ThreadWindows&) = delete;
  ThreadWindows& operator=(const ThreadWindows&) = delete;
  ~ThreadWindows() { letGo(); }

  /// Makes a window with a title in UTF-8; 0 where that fails. The handler must outlive it.
  WindowHandle create(std::string_view title, MessageHandler& handler);

  bool destroy(WindowHandle window);

  bool isEmpty() const { return windows_.empty() || !isCurrent(); }

  /// A window's handler, or null where it is none of this thread.
  MessageHandler* handlerOf(WindowHandle window) const;

  /// Handles what was sent, if anything was, and does not wait.
  void handleWaiting();

  /// Handles what is sent until the socket has something to read or is closed.
  void handleUntilReadable(const ChannelDescriptor& socket);

  /// Handles what is sent until a message is posted. Without a window none can be: then it is `kQuit`.
  std::uint32_t nextPosted();

 private:
  struct Window {
    Endpoint endpoint;
    MessageHandler* handler;
  };
  struct Sender {
    ChannelDescriptor socket;
    WindowHandle window;
    MessageHandler* handler;
    std::uint32_t process;
    bool isWaiting;
  };
  using Clock = std::chrono::steady_clock;
  using Senders = std::map<std::uint64_t, Sender>;

  bool isCurrent() const { return events_.isOpen(); }
  bool open();
  void letGo();
  bool watch(int file, std::uint64_t source, std::uint32_t events);
  void unwatch(int file) const;
  void listenFor(std::uint32_t events);
  void pause();
  void endPause();
  int patience() const;
  bool handleNext(int timeout);
  std::optional<std::uint32_t> takePosted();
  void accept(WindowHandle window);
  void add(ChannelDescriptor socket, WindowHandle window, MessageHandler* handler);
  void receive(std::uint64_t source);
  void handle(Senders::iterator sender, const MessagePacket& packet);
  Senders::iterator drop(Senders::iterator sender);

  ChannelDescriptor events_;
  PostedMessages posted_;
  std::map<WindowHandle, Window> windows_;
  Senders senders_;
  std::uint64_t lastSource_ = 0x7FFFFFFF;
  std::uint64_t drops_ = 0;
  bool mayBePosted_ = false;
  std::optional<Clock::time_point> pausedUntil_;
};

}  // namespace tessaly::platform
