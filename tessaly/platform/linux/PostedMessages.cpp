#include "tessaly/platform/linux/PostedMessages.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <map>

#include "tessaly/platform/linux/ForkMutex.h"

namespace tessaly::platform {
namespace {

/// Guards the table and what all threads have waiting.
std::mutex& mutex() { return forkMutex<PostedMessages>(); }

/// In the child of a fork the parent's threads are not there, and what they had is not to be touched.
struct Owner {
  PostedMessages* messages;
  pid_t process;
};

/// Whose messages are a window's. Never destroyed, since threads may end later.
std::map<WindowHandle, Owner>& owners() {
  static auto& owners = *new std::map<WindowHandle, Owner>;
  return owners;
}

// Made when the program starts, before a thread could while another forks.
[[maybe_unused]] const bool isReady = (mutex(), owners().empty());

}  // namespace

PostedMessages::~PostedMessages() { clear(); }

bool PostedMessages::post(WindowHandle window, std::uint32_t message) {
  const std::lock_guard lock(mutex());
  const auto found = owners().find(window);
  if (found == owners().end() || found->second.process != getpid()) return false;
  PostedMessages& messages = *found->second.messages;
  messages.waiting_.push_back({window, message});
  eventfd_write(messages.signal(), 1);
  return true;
}

bool PostedMessages::open() {
  signal_ = ChannelDescriptor::opened([] { return eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK); });
  return signal_.isOpen();
}

void PostedMessages::addWindow(WindowHandle window) {
  const std::lock_guard lock(mutex());
  owners().insert_or_assign(window, Owner{this, getpid()});
}

void PostedMessages::removeWindow(WindowHandle window) {
  const std::lock_guard lock(mutex());
  owners().erase(window);
  std::erase_if(waiting_, [&](const Posted& posted) { return posted.window == window; });
}

void PostedMessages::clear() {
  const std::lock_guard lock(mutex());
  std::erase_if(owners(), [&](const auto& owner) { return owner.second.messages == this; });
  waiting_.clear();
}

std::optional<std::uint32_t> PostedMessages::take() {
  const std::lock_guard lock(mutex());
  if (waiting_.empty()) return std::nullopt;
  const std::uint32_t message = waiting_.front().message;
  waiting_.pop_front();
  return message;
}

}  // namespace tessaly::platform
