#pragma once

#include <sys/socket.h>

#include <cerrno>
#include <cstdint>
#include <optional>

/// What goes over a connection to a window: a message, then its answer, then the next message.
namespace tessaly::platform {

struct MessagePacket {
  std::uint32_t number;
  std::uint32_t reserved;  ///< 0
  std::uint64_t wParam;
  std::int64_t lParam;
};
static_assert(sizeof(MessagePacket) == 24);

/// What the window's handler gave.
struct AnswerPacket {
  std::int64_t result;
};
static_assert(sizeof(AnswerPacket) == 8);

/// Who is at the other end.
inline std::optional<ucred> peerOf(int socket) {
  ucred peer{};
  socklen_t size = sizeof peer;
  if (getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0) return std::nullopt;
  return peer;
}

enum class Received { Whole, Nothing, Wrong };

/// Takes the next packet; `Wrong` where the other end is gone or the packet has another size.
template <class Packet>
Received receivePacket(int socket, Packet& packet, int flags) {
  ssize_t size = -1;
  do size = recv(socket, &packet, sizeof packet, flags | MSG_TRUNC);
  while (size < 0 && errno == EINTR);
  if (size == sizeof packet) return Received::Whole;
  return size < 0 && errno == EAGAIN ? Received::Nothing : Received::Wrong;
}

/// Whether the packet was taken whole. Raises no signal where the other end is gone.
template <class Packet>
bool sendPacket(int socket, const Packet& packet, int flags) {
  ssize_t size = -1;
  do size = send(socket, &packet, sizeof packet, flags | MSG_NOSIGNAL);
  while (size < 0 && errno == EINTR);
  return size == sizeof packet;
}

}  // namespace tessaly::platform
