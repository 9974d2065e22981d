#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/linux/Descriptor.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/linux/Forked.h"

namespace tessaly::tests {

/// What a window of a test does with a message.
using Work = std::function<std::intptr_t(const platform::SentMessage&)>;

class Handler : public platform::MessageHandler {
 public:
  explicit Handler(Work work) : work_(std::move(work)) {}
  std::intptr_t handle(const platform::SentMessage& message) noexcept override { return work_(message); }

 private:
  Work work_;
};

/// A window of the calling thread.
class Window {
 public:
  explicit Window(const char* title, Work work = {});
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  ~Window();

  platform::WindowHandle handle() const { return window_; }

 private:
  Handler handler_;
  platform::WindowHandle window_;
};

/// A process with a window, which runs until it is told to end or goes with the object.
class Receiver {
 public:
  /// The work gets the number of its own window too.
  using WindowWork = std::function<std::intptr_t(platform::WindowHandle, const platform::SentMessage&)>;

  explicit Receiver(const char* title, const WindowWork& work);
  Receiver(const Receiver&) = delete;
  Receiver& operator=(const Receiver&) = delete;
  ~Receiver();

  platform::WindowHandle window() const { return window_; }
  pid_t process() const { return process_; }

  /// Lets it come to its end: its exit code.
  int end();

  void kill();

 private:
  pid_t process_;
  platform::WindowHandle window_ = 0;
};

/// A folder of the test's own for the channel, for this process and those that it starts.
class OwnChannel {
 public:
  OwnChannel();
  OwnChannel(const OwnChannel&) = delete;
  OwnChannel& operator=(const OwnChannel&) = delete;
  ~OwnChannel();

  /// Where the variable shows.
  const std::filesystem::path& base() const { return temporary_.path(); }

  /// Where windows have their files.
  std::filesystem::path folder() const { return base() / "tessaly"; }
  std::filesystem::path title(platform::WindowHandle window) const;
  std::filesystem::path socket(platform::WindowHandle window) const;

  /// Where a block of this name is.
  std::filesystem::path block(std::string_view name) const;

 private:
  std::string before_;
  TemporaryFolder temporary_;
};

/// A message with number 0xC001, and what it gives.
std::intptr_t sendTo(platform::WindowHandle window, std::intptr_t lParam = 0);

bool isAlive(platform::WindowHandle window);
std::string titleOf(platform::WindowHandle window);

/// All windows in the platform's order.
std::vector<platform::WindowHandle> allWindows();

/// The files of a folder.
std::set<std::string> namesIn(const std::filesystem::path& folder);

unsigned permissionsOf(const std::filesystem::path& file);

/// What the process has open, and which of it a program that it starts would get.
std::set<std::string> descriptors();
std::set<std::string> inheritedDescriptors();

}  // namespace tessaly::tests
