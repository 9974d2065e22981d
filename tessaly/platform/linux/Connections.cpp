#include "tessaly/platform/linux/Connections.h"

#include <sys/socket.h>
#include <sys/time.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace tessaly::platform {
namespace {

/// While a window's queue of new senders is full, own windows are looked after this often.
constexpr timeval kPatience = {0, 20'000};

/// An idle connection has nothing to read: there is an end, or the window does what none should.
bool isIdle(const ChannelDescriptor& socket) {
  char byte = 0;
  return recv(socket.get(), &byte, 1, MSG_PEEK | MSG_DONTWAIT) < 0 && errno == EAGAIN;
}

/// A process that is killed lets go of its files one by one: when a connection to it has ended, its window
/// may still seem alive, and would take a connection that nobody answers. The bound is for a window that
/// lives and has ended the connection.
void waitForEnd(WindowHandle window) {
  constexpr std::chrono::milliseconds step(1);
  constexpr int mostSteps = 100;
  const EndpointFolder folder;
  for (int i = 0; i < mostSteps && folder.isAlive(window); ++i) std::this_thread::sleep_for(step);
}

ChannelDescriptor newSocket() {
  auto socket = ChannelDescriptor::opened([] { return ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0); });
  setsockopt(socket.get(), SOL_SOCKET, SO_SNDTIMEO, &kPatience, sizeof kPatience);
  return socket;
}

/// The folder was looked at by its descriptor, and the address goes by its path.
bool isOwnUsers(const ChannelDescriptor& socket) {
  const std::optional<ucred> peer = peerOf(socket.get());
  return peer && peer->uid == geteuid();
}

bool connectTo(const sockaddr_un& address, const ChannelDescriptor& socket, ThreadWindows& own) {
  while (::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    if (errno == EAGAIN) {
      own.handleWaiting();
    } else if (errno != EINTR) {
      return false;
    }
  }
  return isOwnUsers(socket);
}

bool exchange(const ChannelDescriptor& socket, const MessagePacket& packet, AnswerPacket& answer,
              ThreadWindows& own) {
  if (!sendPacket(socket.get(), packet, 0)) return false;
  if (!own.isEmpty()) own.handleUntilReadable(socket);
  return receivePacket(socket.get(), answer, 0) == Received::Whole;
}

}  // namespace

std::intptr_t Connections::send(WindowHandle window, const MessagePacket& packet, ThreadWindows& own) {
  List used = take(window);
  if (used.empty()) used = connect(window, own);
  AnswerPacket answer{};
  if (used.empty()) return 0;
  if (exchange(used.front().socket, packet, answer, own)) {
    idle_.splice(idle_.begin(), used);
  } else {
    waitForEnd(window);
  }
  return static_cast<std::intptr_t>(answer.result);
}

bool Connections::showAlive(WindowHandle window) {
  List found = take(window);
  if (found.empty()) return false;
  if (!isIdle(found.front().socket)) {
    waitForEnd(window);
    return false;
  }
  idle_.splice(idle_.begin(), found);
  return true;
}

/// Takes an idle connection out of the list; an empty list where there is none.
Connections::List Connections::take(WindowHandle window) {
  List taken;
  const auto found = std::find_if(idle_.begin(), idle_.end(), [&](const Connection& idle) {
    return idle.window == window && idle.socket.isOpen();
  });
  if (found != idle_.end()) taken.splice(taken.begin(), idle_, found);
  return taken;
}

Connections::List Connections::connect(WindowHandle window, ThreadWindows& own) {
  dropEnded();
  List made;
  const EndpointFolder folder;
  if (!folder.isOpen()) return made;
  made.push_back({newSocket(), window});
  if (!connectTo(folder.socketAddress(window), made.front().socket, own)) made.clear();
  return made;
}

/// A window that is never asked for again would keep its connection for ever.
void Connections::dropEnded() {
  idle_.remove_if([](const Connection& idle) { return !isIdle(idle.socket); });
}

}  // namespace tessaly::platform
