#pragma once

#include <list>

#include "tessaly/platform/linux/Packets.h"
#include "tessaly/platform/linux/ThreadWindows.h"

namespace tessaly::platform {

/// One thread's connections to windows that are not its own, kept for the next send. Each carries one message
/// at a time; a message that is sent while another waits takes a connection of its own, since answers come in
/// the order in which the window's thread gets to them.
class Connections {
 public:
  Connections() = default;
  Connections(const Connections&) = delete;
  Connections& operator=(const Connections&) = delete;

  /// Sends a message and waits for the answer, which is 0 where there is none. What is sent meanwhile to the
  /// thread's own windows is handled.
  std::intptr_t send(WindowHandle window, const MessagePacket& packet, ThreadWindows& own);

  /// Whether an idle connection shows that the window lives. One that shows anything else is closed.
  bool showAlive(WindowHandle window);

 private:
  struct Connection {
    ChannelDescriptor socket;
    WindowHandle window;
  };
  using List = std::list<Connection>;

  List take(WindowHandle window);
  List connect(WindowHandle window, ThreadWindows& own);
  void dropEnded();

  List idle_;
};

}  // namespace tessaly::platform
