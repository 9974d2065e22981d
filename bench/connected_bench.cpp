// `Trace` to a receiver in another process, which reads each record as the logger does and then does nothing
// with it; and the message alone, to a window that looks at nothing.

#include <memory>
#include <optional>

#include "bench/Counter.h"
#include "bench/Folder.h"
#include "bench/Partner.h"
#include "bench/RoundTrips.h"
#include "bench/TraceChannel.h"
#include "tessaly/base/Text.h"
#include "tessaly/platform/Core.h"
#include "tessaly/trace/Trace.h"
#include "tools/zplogger/Receiver.h"

namespace tessaly::bench {
namespace {

class CountingListener final : public zplogger::Listener {
 public:
  explicit CountingListener(Counter& lines) : lines_(lines) {}

  void addClient(const zplogger::Sender& /*sender*/, const zplogger::ClientRecord& /*record*/) override {}
  void trace(const zplogger::Sender& /*sender*/, const zplogger::TraceRecord& /*record*/) override {
    lines_.add();
  }
  void deleteClient(const zplogger::Sender& /*sender*/) override {}
  void fault(const zplogger::Sender& /*sender*/, std::string_view /*why*/) override {}

 private:
  Counter& lines_;
};

void receive(Counter& lines, const Partner::IsReady& isReady) {
  CountingListener listener(lines);
  zplogger::Receiver receiver(listener);
  if (receiver.window() == 0) fail("no window for the logger");
  isReady();
  receiver.run();
}

/// The client goes last, and the channel's block with it: the receiver is killed and would leave it.
class Connection {
 public:
  Connection() { client_.emplace(); }

  std::size_t lines() const { return lines_.value(); }

 private:
  Counter lines_;
  std::optional<Client> client_;
  Partner receiver_{[this](const Partner::IsReady& isReady) { receive(lines_, isReady); }};
};

LineSender openConnection() {
  const auto connection = std::make_shared<Connection>();
  if (!logger->Connected()) fail("the logger was not found");
  const String line = fromUtf8(kLine);
  return {[line] { Trace(line); }, [connection] { return connection->lines(); }};
}

class CountingWindow final : public platform::MessageHandler {
 public:
  explicit CountingWindow(Counter& messages) : messages_(messages) {}

  std::intptr_t handle(const platform::SentMessage& /*message*/) noexcept override {
    messages_.add();
    return 0;
  }

 private:
  Counter& messages_;
};

constexpr const char* kPlainTitle = "Tessaly's benchmark";

void receivePlain(Counter& messages, const Partner::IsReady& isReady) {
  CountingWindow handler(messages);
  if (platform::core().messages->CreateWindowExA(kPlainTitle, handler) == 0) fail("no window");
  isReady();
  platform::core().messages->GetMessageA();
}

platform::WindowHandle& plainWindow() {
  static platform::WindowHandle window = 0;
  return window;
}

Long lookForPlain(platform::WindowHandle window, Long& /*value*/) {
  std::string title(100, '\0');
  const Long length = platform::core().messages->GetWindowTextA(window, title.data(), 100);
  if (title.substr(0, static_cast<std::size_t>(length)) != kPlainTitle) return 1;
  plainWindow() = window;
  return 0;
}

struct PlainConnection {
  Counter messages;
  Partner receiver{[this](const Partner::IsReady& isReady) { receivePlain(messages, isReady); }};
};

LineSender openPlain() {
  const auto connection = std::make_shared<PlainConnection>();
  Long value = 0;
  platform::core().messages->EnumWindows(&lookForPlain, value);
  const std::uint32_t message = platform::core().messages->RegisterWindowMessageA("Tessaly's benchmark");
  return {[message] { platform::core().messages->SendMessageA(plainWindow(), message, 0, 0); },
          [connection] { return connection->messages.value(); }};
}

bool addAll() {
  addLineSender("Tessaly", &openConnection);
  addLineSender("Tessaly, SendMessageA alone", &openPlain);
  return true;
}
const bool added = addAll();

}  // namespace
}  // namespace tessaly::bench
