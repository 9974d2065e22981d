#include "tessaly/platform/linux/ThreadWindows.h"

#include <poll.h>
#include <sys/epoll.h>

#include <array>

namespace tessaly::platform {
namespace {

/// An event's source: what was posted, a window that somebody connects to, or a sender. Senders' numbers lie
/// above all windows' and are never given twice.
constexpr std::uint64_t kPosted = 0;

/// Further senders wait until one goes. The process needs descriptors for other things too.
constexpr std::size_t kMostSenders = 500;

/// When to look again whether there are descriptors.
constexpr std::chrono::milliseconds kPauseForDescriptors(100);

bool isForWantOfDescriptors(int error) {
  return error == EMFILE || error == ENFILE || error == ENOBUFS || error == ENOMEM;
}

}  // namespace

MessageHandler* ThreadWindows::handlerOf(WindowHandle window) const {
  if (isEmpty()) return nullptr;
  const auto found = windows_.find(window);
  return found == windows_.end() ? nullptr : found->second.handler;
}

WindowHandle ThreadWindows::create(std::string_view title, MessageHandler& handler) {
  if (!isCurrent() && !open()) return 0;
  std::optional<Endpoint> endpoint = Endpoint::made(title);
  if (!endpoint) return 0;
  const WindowHandle window = endpoint->window();
  if (!watch(endpoint->listener(), static_cast<std::uint64_t>(window), EPOLLIN)) return 0;
  windows_.emplace(window, Window{std::move(*endpoint), &handler});
  posted_.addWindow(window);
  return window;
}

/// The files go before the connections: a sender that sees its connection end looks whether there is a
/// window.
bool ThreadWindows::destroy(WindowHandle window) {
  if (handlerOf(window) == nullptr) return false;
  posted_.removeWindow(window);
  const auto found = windows_.find(window);
  unwatch(found->second.endpoint.listener());
  windows_.erase(found);
  for (auto sender = senders_.begin(); sender != senders_.end();)
    sender = sender->second.window == window ? drop(sender) : std::next(sender);
  return true;
}

bool ThreadWindows::open() {
  letGo();
  events_ = ChannelDescriptor::opened([] { return epoll_create1(EPOLL_CLOEXEC); });
  // Told once for each message: one that waits for another place must not wake this thread again and again.
  if (isCurrent() && posted_.open() && watch(posted_.signal(), kPosted, EPOLLIN | EPOLLET)) return true;
  letGo();
  return false;
}

void ThreadWindows::letGo() {
  posted_.clear();
  windows_.clear();
  senders_.clear();
  ++drops_;
  events_ = ChannelDescriptor();
  pausedUntil_.reset();
}

bool ThreadWindows::watch(int file, std::uint64_t source, std::uint32_t events) {
  epoll_event event{};
  event.events = events;
  event.data.u64 = source;
  return epoll_ctl(events_.get(), EPOLL_CTL_ADD, file, &event) == 0;
}

/// Closing would not do where the child of a fork has not closed its copy yet.
void ThreadWindows::unwatch(int file) const { epoll_ctl(events_.get(), EPOLL_CTL_DEL, file, nullptr); }

void ThreadWindows::listenFor(std::uint32_t events) {
  for (const auto& [window, its] : windows_) {
    epoll_event event{};
    event.events = events;
    event.data.u64 = static_cast<std::uint64_t>(window);
    epoll_ctl(events_.get(), EPOLL_CTL_MOD, its.endpoint.listener(), &event);
  }
}

/// One that can't be taken would be told again and again.
void ThreadWindows::pause() {
  listenFor(0);
  pausedUntil_ = Clock::now() + kPauseForDescriptors;
}

void ThreadWindows::endPause() {
  if (senders_.size() >= kMostSenders || Clock::now() < pausedUntil_) return;
  listenFor(EPOLLIN);
  pausedUntil_.reset();
}

int ThreadWindows::patience() const {
  return pausedUntil_ ? static_cast<int>(kPauseForDescriptors.count()) : -1;
}

bool ThreadWindows::handleNext(int timeout) {
  if (pausedUntil_) endPause();
  epoll_event event{};
  if (epoll_wait(events_.get(), &event, 1, timeout) != 1) return false;
  const std::uint64_t source = event.data.u64;
  if (source > kLastWindow) {
    receive(source);
  } else if (source == kPosted) {
    mayBePosted_ = true;
  } else {
    accept(static_cast<WindowHandle>(source));
  }
  return true;
}

void ThreadWindows::handleWaiting() {
  while (!isEmpty() && handleNext(0)) {
  }
}

void ThreadWindows::handleUntilReadable(const ChannelDescriptor& socket) {
  while (socket.isOpen() && !isEmpty()) {
    std::array<pollfd, 2> files = {{{socket.get(), POLLIN, 0}, {events_.get(), POLLIN, 0}}};
    poll(files.data(), files.size(), patience());
    if (files.front().revents != 0) return;
    handleNext(0);
  }
}

/// Asks only after it was told of a message: a look costs a lock.
std::optional<std::uint32_t> ThreadWindows::takePosted() {
  if (!mayBePosted_) return std::nullopt;
  const auto message = posted_.take();
  mayBePosted_ = message.has_value();
  return message;
}

std::uint32_t ThreadWindows::nextPosted() {
  while (!isEmpty()) {
    if (const auto message = takePosted()) return *message;
    handleNext(patience());
  }
  return kQuit;
}

void ThreadWindows::accept(WindowHandle window) {
  const auto found = windows_.find(window);
  if (found == windows_.end()) return;
  auto socket = ChannelDescriptor::opened(
      [&] { return accept4(found->second.endpoint.listener(), nullptr, nullptr, SOCK_CLOEXEC); });
  if (socket.isOpen()) {
    add(std::move(socket), window, found->second.handler);
  } else if (isForWantOfDescriptors(errno)) {
    pause();
  }
}

void ThreadWindows::add(ChannelDescriptor socket, WindowHandle window, MessageHandler* handler) {
  const std::optional<ucred> peer = peerOf(socket.get());
  if (!peer || peer->uid != geteuid() || !watch(socket.get(), lastSource_ + 1, EPOLLIN | EPOLLET)) return;
  const auto process = static_cast<std::uint32_t>(peer->pid);
  senders_.emplace(++lastSource_, Sender{std::move(socket), window, handler, process, false});
  if (senders_.size() >= kMostSenders) pause();
}

/// A sender whose message is under way waits, so that what comes from it can only be its end, or wrong.
void ThreadWindows::receive(std::uint64_t source) {
  const auto found = senders_.find(source);
  if (found == senders_.end()) return;
  MessagePacket packet{};
  const Received received = receivePacket(found->second.socket.get(), packet, MSG_DONTWAIT);
  if (received == Received::Nothing) return;
  if (received == Received::Wrong || packet.reserved != 0 || found->second.isWaiting) {
    drop(found);
  } else {
    handle(found, packet);
  }
}

std::intptr_t handOver(const MessagePacket& packet, std::uint32_t sender, MessageHandler& handler) {
  if (packet.number < kFirstRegistered) return 0;
  return handler.handle({packet.number, static_cast<std::uintptr_t>(packet.wParam),
                         static_cast<std::intptr_t>(packet.lParam), sender});
}

/// The handler may do anything, and the sender be gone when it comes back.
void ThreadWindows::handle(Senders::iterator sender, const MessagePacket& packet) {
  const std::uint64_t source = sender->first;
  const std::uint64_t drops = drops_;
  sender->second.isWaiting = true;
  const std::intptr_t result = handOver(packet, sender->second.process, *sender->second.handler);
  if (drops != drops_) sender = senders_.find(source);
  if (sender == senders_.end()) return;
  sender->second.isWaiting = false;
  if (!sendPacket(sender->second.socket.get(), AnswerPacket{result}, MSG_DONTWAIT)) drop(sender);
}

ThreadWindows::Senders::iterator ThreadWindows::drop(Senders::iterator sender) {
  ++drops_;
  unwatch(sender->second.socket.get());
  return senders_.erase(sender);
}

}  // namespace tessaly::platform
