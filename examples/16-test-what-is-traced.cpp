// A host's own test sees what the host traces: a machine in memory, with a logger in it.

#include <algorithm>

#include "examples/support/Print.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Messages.h"
#include "tessaly/platform/fake/SharedMemory.h"
#include "tessaly/trace/ZPLoggerClient.h"

using examples::printLine;
namespace platform = tessaly::platform;

namespace {

constexpr const char* kBlock = "ZPLoggerMappedFile1CA";

// Reads a record from the block while the client waits, as any logger does.
class MemoryLogger final : public platform::MessageHandler {
 public:
  MemoryLogger(platform::fake::Messages& messages, platform::fake::SharedMemory& memory)
      : trace_(messages.RegisterWindowMessageA("ZPLoggerWindowMsgAddTrace")), memory_(memory) {
    messages.CreateWindowExA("ZPLogger server", *this);
  }

  std::intptr_t handle(const platform::SentMessage& message) noexcept override {
    if (message.number == trace_) showLine(memory_.bytes(kBlock));
    return 0;
  }

 private:
  // The texts here are short, so the first byte of the length tells all of it.
  static void showLine(std::string_view record) {
    const auto level = static_cast<tessaly::Long>(static_cast<unsigned char>(record[9]));
    const std::size_t length = static_cast<unsigned char>(record[10]);
    printLine(u"level ", level, u": ", tessaly::fromUtf8(record.substr(14, length)));
  }

  std::uint32_t trace_;
  platform::fake::SharedMemory& memory_;
};

}  // namespace

int main() {
  platform::fake::SharedMemory memory;
  platform::fake::Messages messages;
  const platform::Override memoryInForce(memory);
  const platform::Override messagesInForce(messages);
  MemoryLogger logger(messages, memory);

  // The host's part: mind that SendTrace has the level behind the colours.
  tessaly::ZPLoggerClient client;
  client.Init(u"Example", u"", u"");
  client.SendTrace(u"Start", 0, 0xFFFFFF, 0, tessaly::True);
  client.SendTrace(u"Can't open Costs.rep", 0x000080, 0xFFFFFF, 2, tessaly::True);

  // A platform that fails loses the line, and nobody is told.
  messages.fail("SendMessageA");
  client.SendTrace(u"lost", 0, 0xFFFFFF, 0, tessaly::True);
  const auto& calls = messages.calls();
  const auto sent = std::count(calls.begin(), calls.end(), "SendMessageA");
  printLine(u"Calls of SendMessageA: ", static_cast<tessaly::Long>(sent));
}
