#pragma once

#include <deque>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tessaly/base/Export.h"
#include "tessaly/platform/Messages.h"

namespace tessaly::platform::fake {

/// Windows in this process alone, with failures by a test's choice and a record of what was asked. What is
/// sent is handled within the call, whatever thread has made the window. Not for several threads at once.
class TESSALY_API Messages final : public platform::Messages {
 public:
  /// From now on the calls of this name do nothing and fail.
  void fail(const std::string& call) { failing_.insert(call); }

  /// The names of the calls in their order, such as "SendMessageA".
  const std::vector<std::string>& calls() const { return calls_; }

  /// What is sent from now on comes from this process; 0 at first.
  void sendAs(std::uint32_t process) { sender_ = process; }

  /// Lets a window go as if its process had ended.
  void kill(WindowHandle window) { windows_.erase(window); }

  /// The next window that is made gets the number of one that is gone.
  void reuse(WindowHandle window) { next_ = window; }

  std::uint32_t RegisterWindowMessageA(const char* name) override;
  std::intptr_t SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t wParam,
                             std::intptr_t lParam) override;
  Long GetWindowLongA(WindowHandle window, Long index) override;

  /// The newest window comes first.
  bool EnumWindows(WindowCallback callback, Long& value) override;
  Long GetWindowTextA(WindowHandle window, char* buffer, Long size) override;
  WindowHandle CreateWindowExA(const char* title, MessageHandler& handler) override;
  bool DestroyWindow(WindowHandle window) override;

  /// Gives what was posted, and `kQuit` where nothing was, since nobody else could post anything.
  std::uint32_t GetMessageA() override;
  bool PostMessageA(WindowHandle window, std::uint32_t message) override;

 private:
  struct Window {
    std::string title;
    MessageHandler* handler;
  };

  bool fails(const char* call);

  std::map<WindowHandle, Window> windows_;
  std::map<std::string, std::uint32_t> numbers_;
  std::deque<std::uint32_t> posted_;
  std::set<std::string> failing_;
  std::vector<std::string> calls_;
  std::uint32_t sender_ = 0;
  WindowHandle next_ = 1;
};

}  // namespace tessaly::platform::fake
