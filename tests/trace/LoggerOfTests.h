#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Messages.h"
#include "tessaly/platform/fake/SharedMemory.h"

namespace tessaly::tests {

inline constexpr const char* kBlockName = "ZPLoggerMappedFile1CA";
inline constexpr std::size_t kBlockSize = 5000;

/// The block and the windows of a machine of the test's own, in force as long as it lives.
struct Machine {
  platform::fake::SharedMemory memory;
  platform::fake::Messages messages;
  platform::Override memoryInForce{memory};
  platform::Override messagesInForce{messages};

  /// How often a call was made.
  std::size_t count(std::string_view call) const {
    std::size_t found = 0;
    for (const auto* calls : {&memory.calls(), &messages.calls()})
      for (const std::string& made : *calls) found += made == call ? 1 : 0;
    return found;
  }
};

/// A logger of a test's own: it notes which message came and what stood in the block then.
class NotingLogger final : public platform::MessageHandler {
 public:
  struct Note {
    std::string message;
    std::string block;
    std::uintptr_t wParam = 0;
    std::intptr_t lParam = 0;
  };

  explicit NotingLogger(Machine& machine, const char* title = "ZPLogger server")
      : machine_(machine), window_(machine.messages.CreateWindowExA(title, *this)) {}
  NotingLogger(const NotingLogger&) = delete;
  NotingLogger& operator=(const NotingLogger&) = delete;
  ~NotingLogger() override { machine_.messages.kill(window_); }

  platform::WindowHandle window() const { return window_; }
  const std::vector<Note>& notes() const { return notes_; }

  /// What came, in order: "Add", "Delete" or "Trace" for each message.
  std::string order() const {
    std::string names;
    for (const Note& note : notes_) names += (names.empty() ? "" : " ") + note.message;
    return names;
  }

  /// The front of the block as it stood when the last message came.
  std::string_view lastBlock(std::size_t size) const {
    return std::string_view(notes_.back().block).substr(0, size);
  }

  std::intptr_t handle(const platform::SentMessage& message) noexcept override {
    notes_.push_back({nameOf(message.number), std::string(machine_.memory.bytes(kBlockName)), message.wParam,
                      message.lParam});
    return 0;
  }

 private:
  std::string nameOf(std::uint32_t number) {
    const auto isNumberOf = [&](const char* name) {
      return machine_.messages.RegisterWindowMessageA(name) == number;
    };
    if (isNumberOf("ZPLoggerWindowMsgAddTrace")) return "Trace";
    if (isNumberOf("ZPLoggerWindowMsgAddClient")) return "Add";
    return isNumberOf("ZPLoggerWindowMsgDeleteClient") ? "Delete" : "?";
  }

  Machine& machine_;
  platform::WindowHandle window_;
  std::vector<Note> notes_;
};

}  // namespace tessaly::tests
