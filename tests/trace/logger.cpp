// A logger in a process of its own, made of nothing but the platform's calls. It writes "ready", and a line
// for each message: "add NAME|LOG FILE|BACKUP FILE", "trace LEVEL TEXT" or "delete". Started with a number,
// it then takes a line of input before it answers that message, counted from 1, and writes "answering" and
// the time.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>

#include "tessaly/platform/Core.h"

namespace {

namespace platform = tessaly::platform;

constexpr std::size_t kBlockSize = 5000;

std::string blockOf(std::intptr_t client) {
  platform::SharedMemory& memory = *platform::core().sharedMemory;
  std::array<char, 40> name{};
  std::snprintf(name.data(), name.size(), "ZPLoggerMappedFile%X", static_cast<unsigned>(client));
  const platform::MappingHandle mapping = memory.OpenFileMappingA(platform::kViewRead, name.data());
  const void* const view = memory.MapViewOfFile(mapping, platform::kViewRead, kBlockSize);
  std::string bytes(kBlockSize, '\0');
  if (view != nullptr) std::memcpy(bytes.data(), view, kBlockSize);
  if (view != nullptr) memory.UnmapViewOfFile(view);
  memory.CloseHandle(mapping);
  return bytes;
}

/// Takes a text from the front of what is left of a record.
std::string takeText(std::string& record) {
  std::uint32_t length = 0;
  std::memcpy(&length, record.data(), std::min(sizeof length, record.size()));
  std::string text = record.substr(sizeof length, length);
  record.erase(0, sizeof length + length);
  return text;
}

std::string clientOf(std::string record) {
  const std::string name = takeText(record);
  const std::string logFile = takeText(record);
  return name + '|' + logFile + '|' + takeText(record);
}

std::string lineOf(std::string record) {
  const auto level = static_cast<unsigned char>(record[9]);
  record.erase(0, 10);
  return std::to_string(level) + ' ' + takeText(record);
}

class Logger final : public platform::MessageHandler {
 public:
  explicit Logger(int held) : held_(held) {
    platform::Messages& messages = *platform::core().messages;
    trace_ = messages.RegisterWindowMessageA("ZPLoggerWindowMsgAddTrace");
    add_ = messages.RegisterWindowMessageA("ZPLoggerWindowMsgAddClient");
    delete_ = messages.RegisterWindowMessageA("ZPLoggerWindowMsgDeleteClient");
    if (messages.CreateWindowExA("ZPLogger server", *this) == 0) std::exit(1);
  }

  std::intptr_t handle(const platform::SentMessage& message) noexcept override {
    if (message.number == add_) {
      std::cout << "add " << clientOf(blockOf(message.lParam)) << std::endl;
    } else if (message.number == trace_) {
      std::cout << "trace " << lineOf(blockOf(message.lParam)) << std::endl;
    } else if (message.number == delete_) {
      std::cout << "delete" << std::endl;
    }
    if (++handled_ == held_) hold();
    return 0;
  }

 private:
  static void hold() {
    std::string line;
    std::getline(std::cin, line);
    std::cout << "answering " << std::chrono::steady_clock::now().time_since_epoch().count() << std::endl;
  }

  int held_;
  int handled_ = 0;
  std::uint32_t trace_ = 0;
  std::uint32_t add_ = 0;
  std::uint32_t delete_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  const Logger logger(argc > 1 ? std::atoi(argv[1]) : 0);
  std::cout << "ready" << std::endl;
  while (platform::core().messages->GetMessageA() != platform::kQuit) {
  }
}
