#pragma once

#include <cstdint>
#include <deque>
#include <optional>

#include "tessaly/platform/Messages.h"
#include "tessaly/platform/linux/ChannelDescriptor.h"

namespace tessaly::platform {

/// What was posted to the windows of one thread and not fetched yet. Other threads of the process post by the
/// window's number.
class PostedMessages {
 public:
  PostedMessages() = default;
  PostedMessages(const PostedMessages&) = delete;
  PostedMessages& operator=(const PostedMessages&) = delete;
  ~PostedMessages();

  /// False where the window is none of this process.
  static bool post(WindowHandle window, std::uint32_t message);

  /// Begins with a descriptor that tells of each posted message; whether there is one.
  bool open();
  int signal() const { return signal_.get(); }

  void addWindow(WindowHandle window);

  /// What was posted to the window is gone with it.
  void removeWindow(WindowHandle window);

  /// Lets all windows go.
  void clear();

  /// The oldest message.
  std::optional<std::uint32_t> take();

 private:
  struct Posted {
    WindowHandle window;
    std::uint32_t message;
  };

  ChannelDescriptor signal_;
  std::deque<Posted> waiting_;
};

}  // namespace tessaly::platform
