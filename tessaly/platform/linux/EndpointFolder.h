#pragma once

#include <sys/un.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tessaly/platform/Messages.h"
#include "tessaly/platform/linux/ChannelDescriptor.h"

namespace tessaly::platform {

/// The numbers of windows are 1 to this one.
inline constexpr WindowHandle kLastWindow = 0x7FFFFFFF;

/// The folder where the user's windows are. A window with number N has two files there, by N's eight
/// lower-case hexadecimal digits: N.title with its title in UTF-8, which its process keeps locked as long as
/// the window lives, and N.socket that it listens on. Who makes a window has a shared lock on the folder
/// until it is whole, and who removes what dead processes have left has the exclusive one.
class EndpointFolder {
 public:
  /// Opens the folder, and makes it where it is missing.
  EndpointFolder();

  bool isOpen() const { return folder_.isOpen(); }
  int get() const { return folder_.get(); }

  /// The windows that live, the newest first. What dead ones have left is removed, unless a window is being
  /// made just now.
  std::vector<WindowHandle> windows() const;

  bool isAlive(WindowHandle window) const;

  /// The title of a window that lives, in UTF-8, and empty of one that does not. It is not read further than
  /// any title is long.
  std::string title(WindowHandle window) const;

  /// Removes both files of a window.
  void remove(WindowHandle window) const;

  /// Where the window's socket is; where its path is too long for that, by way of this folder's descriptor,
  /// which must stay open while the address is used.
  sockaddr_un socketAddress(WindowHandle window) const;

  static std::string titleName(WindowHandle window);
  static std::string socketName(WindowHandle window);

 private:
  enum class State { Alive, Dead, Unknown };

  ChannelDescriptor openTitle(WindowHandle window) const;
  static State stateOf(const ChannelDescriptor& title);
  std::vector<WindowHandle> names() const;
  void sweep(const std::vector<WindowHandle>& dead) const;

  std::string path_;
  ChannelDescriptor folder_;
};

}  // namespace tessaly::platform
