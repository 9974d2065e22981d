#pragma once

#include <optional>
#include <string_view>

#include "tessaly/platform/linux/EndpointFolder.h"

namespace tessaly::platform {

/// What a window of this process is to others: a locked title and a socket that listens. Both go with the
/// object, and stay the parent's where a fork's child has a copy of it.
class Endpoint {
 public:
  /// Makes one with a title in UTF-8 and a new number; none where that fails. Others see it when it is whole.
  static std::optional<Endpoint> made(std::string_view title);

  Endpoint(Endpoint&&) noexcept = default;
  Endpoint& operator=(Endpoint&&) = delete;
  ~Endpoint();

  WindowHandle window() const { return window_; }

  /// Gives connections without waiting.
  int listener() const { return listener_.get(); }

 private:
  Endpoint(EndpointFolder folder, WindowHandle window, ChannelDescriptor title)
      : folder_(std::move(folder)), window_(window), title_(std::move(title)) {}

  bool write(std::string_view text) const;
  bool listen();

  EndpointFolder folder_;
  WindowHandle window_;
  ChannelDescriptor title_;
  ChannelDescriptor listener_;
};

}  // namespace tessaly::platform
