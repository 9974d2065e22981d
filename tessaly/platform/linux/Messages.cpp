#include "tessaly/platform/Messages.h"

#include <unistd.h>

#include <algorithm>

#include "tessaly/base/Fnv.h"
#include "tessaly/base/Text.h"
#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/linux/Connections.h"

namespace tessaly::platform {
namespace {

constexpr std::size_t kLongestName = 255;

struct OfThread {
  ThreadWindows windows;
  Connections connections;
};

/// What the calling thread has, as long as it runs. Destructors at its end, and at the program's, may come
/// later: they find nothing, and what they send goes over a connection that is not kept.
OfThread* ofThread() {
  thread_local bool isOver = false;
  struct Owner {
    ~Owner() { isOver = true; }
    OfThread its;
  };
  if (isOver) return nullptr;
  thread_local Owner owner;
  return &owner.its;
}

char upperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::intptr_t sendFrom(OfThread& thread, WindowHandle window, const MessagePacket& packet) {
  if (MessageHandler* handler = thread.windows.handlerOf(window)) {
    return handOver(packet, static_cast<std::uint32_t>(getpid()), *handler);
  }
  return thread.connections.send(window, packet, thread.windows);
}

class OwnMessages : public Messages {
 public:
  /// No table is kept anywhere: the number follows from the name.
  std::uint32_t RegisterWindowMessageA(const char* name) override {
    std::string upper = name != nullptr ? name : "";
    if (upper.empty() || upper.size() > kLongestName) return 0;
    std::transform(upper.begin(), upper.end(), upper.begin(), upperAscii);
    const std::uint32_t number = fnv32(upper);
    return number < kFirstRegistered ? number + kFirstRegistered : number;
  }

  std::intptr_t SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t wParam,
                             std::intptr_t lParam) override {
    const MessagePacket packet{message, 0, wParam, lParam};
    if (OfThread* thread = ofThread()) return sendFrom(*thread, window, packet);
    OfThread passing;
    return sendFrom(passing, window, packet);
  }

  Long GetWindowLongA(WindowHandle window, Long index) override {
    if (index != kWindowInstance) return 0;
    OfThread* thread = ofThread();
    if (thread != nullptr && thread->windows.handlerOf(window) != nullptr) return 1;
    if (thread != nullptr && thread->connections.showAlive(window)) return 1;
    return EndpointFolder().isAlive(window) ? 1 : 0;
  }

  bool EnumWindows(WindowCallback callback, Long& value) override {
    const EndpointFolder folder;
    if (!folder.isOpen()) return false;
    const std::vector<WindowHandle> windows = folder.windows();
    return std::all_of(windows.begin(), windows.end(),
                       [&](WindowHandle window) { return callback(window, value) != 0; });
  }

  Long GetWindowTextA(WindowHandle window, char* buffer, Long size) override {
    if (buffer == nullptr || size <= 0) return 0;
    const std::string text = toAnsi(fromUtf8(EndpointFolder().title(window)));
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(size) - 1);
    text.copy(buffer, length);
    buffer[length] = '\0';
    return static_cast<Long>(length);
  }

  WindowHandle CreateWindowExA(const char* title, MessageHandler& handler) override {
    OfThread* thread = ofThread();
    const std::string text = title != nullptr ? toUtf8(fromAnsi(title)) : std::string();
    return thread != nullptr ? thread->windows.create(text, handler) : 0;
  }

  bool DestroyWindow(WindowHandle window) override {
    OfThread* thread = ofThread();
    return thread != nullptr && thread->windows.destroy(window);
  }

  std::uint32_t GetMessageA() override {
    OfThread* thread = ofThread();
    return thread != nullptr ? thread->windows.nextPosted() : kQuit;
  }

  bool PostMessageA(WindowHandle window, std::uint32_t message) override {
    return PostedMessages::post(window, message);
  }
};

// Made when the program starts, before a thread could while another forks.
[[maybe_unused]] const Messages& messagesAtStart = ownMessages();

}  // namespace

// Never destroyed: what is static may still send then.
Messages& ownMessages() {
  static Messages& messages = *new OwnMessages;
  return messages;
}

}  // namespace tessaly::platform
