#include "tools/zplogger/Receiver.h"

#include <array>
#include <cstring>
#include <string>

#include "tools/support/Hex.h"

namespace tessaly::zplogger {
namespace {

/// What Windows posts to a window when somebody asks its program to end.
constexpr std::uint32_t kClose = 0x10;

std::string blockName(std::uint32_t clientId) {
  const String digits = tools::hexDigits(clientId, 1, tools::HexLetters::Capital);
  return "ZPLoggerMappedFile" + std::string(digits.begin(), digits.end());
}

}  // namespace

Receiver::Receiver(Listener& listener, const char* title)
    : listener_(listener),
      messages_(*platform::core().messages),
      memory_(*platform::core().sharedMemory),
      addTrace_(messages_.RegisterWindowMessageA("ZPLoggerWindowMsgAddTrace")),
      addClient_(messages_.RegisterWindowMessageA("ZPLoggerWindowMsgAddClient")),
      deleteClient_(messages_.RegisterWindowMessageA("ZPLoggerWindowMsgDeleteClient")),
      window_(messages_.CreateWindowExA(title, *this)) {}

Receiver::~Receiver() {
  if (window_ != 0) messages_.DestroyWindow(window_);
  closeBlock();
}

void Receiver::run() {
  if (window_ == 0) return;
  for (std::uint32_t posted = 0; posted != platform::kQuit && posted != kClose;)
    posted = messages_.GetMessageA();
}

void Receiver::stop() {
  if (window_ != 0) messages_.PostMessageA(window_, platform::kQuit);
}

std::intptr_t Receiver::handle(const platform::SentMessage& message) noexcept {
  try {
    handOn(message, {static_cast<std::uint32_t>(message.lParam), message.sender});
  } catch (...) {
    // The line is lost. The client can do nothing about it, and the next one may find memory again.
  }
  return 0;
}

void Receiver::handOn(const platform::SentMessage& message, const Sender& sender) {
  if (message.number == deleteClient_) return listener_.deleteClient(sender);
  if (message.number != addTrace_ && message.number != addClient_) return;
  const bool isNewClient = message.number == addClient_;
  if (isNewClient || view_ == nullptr || sender.clientId != clientId_) openBlock(sender.clientId);
  if (view_ == nullptr) return listener_.fault(sender, "its block of memory can't be opened");
  // Clients lock nothing, so what is looked at must not be what another one may change meanwhile.
  std::array<char, kBlockSize> copy;
  std::memcpy(copy.data(), view_, copy.size());
  const std::string_view bytes(copy.data(), copy.size());
  if (isNewClient) {
    if (const auto record = readClientRecord(bytes)) return listener_.addClient(sender, *record);
    return listener_.fault(sender, "a client record does not fit into its block");
  }
  if (const auto record = readTraceRecord(bytes)) return listener_.trace(sender, *record);
  listener_.fault(sender, "a trace record does not fit into its block");
}

/// The block stays open, so that a line costs no opening. As long as this end holds it, it is also the one
/// that later clients open, unless somebody has removed its name; so each new client has it opened anew.
void Receiver::openBlock(std::uint32_t clientId) {
  closeBlock();
  clientId_ = clientId;
  mapping_ = memory_.OpenFileMappingA(platform::kViewRead, blockName(clientId).c_str());
  if (mapping_ != 0) view_ = memory_.MapViewOfFile(mapping_, platform::kViewRead, kBlockSize);
}

void Receiver::closeBlock() {
  if (view_ != nullptr) memory_.UnmapViewOfFile(view_);
  if (mapping_ != 0) memory_.CloseHandle(mapping_);
  view_ = nullptr;
  mapping_ = 0;
}

}  // namespace tessaly::zplogger
