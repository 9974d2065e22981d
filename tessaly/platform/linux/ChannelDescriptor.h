#pragma once

#include <list>
#include <mutex>
#include <utility>

#include "tessaly/platform/linux/Descriptor.h"

namespace tessaly::platform {

/// A file descriptor of the message channel: closed with its owner, and at once in the child of a fork, where
/// the owner then has none. Windows and connections stay the parent's alone that way, and so do their locks,
/// which only the last close of a description gives back.
class ChannelDescriptor {
 public:
  ChannelDescriptor() : place_(none()) {}
  ChannelDescriptor(ChannelDescriptor&& other) noexcept : place_(std::exchange(other.place_, none())) {}
  ChannelDescriptor& operator=(ChannelDescriptor&& other) noexcept {
    std::swap(place_, other.place_);
    return *this;
  }
  ~ChannelDescriptor();

  /// Takes the descriptor that `open` gives, or none where that is -1, and leaves errno as it is then. A fork
  /// waits until that has returned, so nothing may wait in there.
  template <class Open>
  static ChannelDescriptor opened(const Open& open) {
    const std::lock_guard lock(mutex());
    Descriptor made(open());
    return made.isOpen() ? ChannelDescriptor(std::move(made)) : ChannelDescriptor();
  }

  int get() const { return *place_; }
  bool isOpen() const { return get() >= 0; }

 private:
  using Numbers = std::list<int>;

  static std::mutex& mutex();
  static Numbers& numbers();
  static Numbers::iterator none();
  static void closeInChild();

  explicit ChannelDescriptor(Descriptor made);

  static const bool kIsReady;

  Numbers::iterator place_;
};

}  // namespace tessaly::platform
