#include "tessaly/platform/linux/ChannelDescriptor.h"

#include <pthread.h>

namespace tessaly::platform {

std::mutex& ChannelDescriptor::mutex() {
  static std::mutex mutex;
  [[maybe_unused]] static const int registered =
      pthread_atfork([] { mutex.lock(); }, [] { mutex.unlock(); }, closeInChild);
  return mutex;
}

/// All that are open, and first the one that stands for none. Never destroyed, since threads may end later.
ChannelDescriptor::Numbers& ChannelDescriptor::numbers() {
  static Numbers& numbers = *new Numbers{-1};
  return numbers;
}

ChannelDescriptor::Numbers::iterator ChannelDescriptor::none() {
  static const auto place = numbers().begin();
  return place;
}

/// Made when the program starts, before a thread could while another forks.
const bool ChannelDescriptor::kIsReady = (mutex(), *none() < 0);

ChannelDescriptor::ChannelDescriptor(Descriptor made)
    : place_(numbers().insert(numbers().end(), made.get())) {
  made.abandon();
}

ChannelDescriptor::~ChannelDescriptor() {
  if (place_ == none()) return;
  const std::lock_guard lock(mutex());
  const Descriptor closed(*place_);
  numbers().erase(place_);
}

/// The places stay, since their owners still have them.
void ChannelDescriptor::closeInChild() {
  for (int& number : numbers()) const Descriptor closed(std::exchange(number, -1));
  mutex().unlock();
}

}  // namespace tessaly::platform
