#include "tessaly/trace/ZPLoggerClient.h"

#include <array>
#include <bit>
#include <cstdio>
#include <cstring>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/Core.h"
#include "tessaly/trace/ZPLogerClientModule.h"

namespace tessaly {
namespace {

/// One number for all clients in all processes: it names the block that they share.
constexpr Long kClientId = 458;

constexpr std::uint32_t kBlockSize = 5000;
constexpr std::size_t kLengthSize = 4;
constexpr std::size_t kRoomForText = kBlockSize - 10 - kLengthSize;
constexpr std::size_t kRoomForClient = kBlockSize - 3 * kLengthSize;
constexpr Long kHighestLevel = 255;

static_assert(std::endian::native == std::endian::little, "a record's numbers have the low byte first");

platform::Messages& messages() { return *platform::core().messages; }

std::array<char, 32> mappingName(Long clientId) {
  std::array<char, 32> name{};
  std::snprintf(name.data(), name.size(), "ZPLoggerMappedFile%X", static_cast<unsigned>(clientId));
  return name;
}

template <class Number>
void put(Number number, char*& cursor) {
  std::memcpy(cursor, &number, sizeof number);
  cursor += sizeof number;
}

}  // namespace

ZPLoggerClient::ZPLoggerClient() : memory_(platform::core().sharedMemory) {
  msgAddTrace_ = messages().RegisterWindowMessageA("ZPLoggerWindowMsgAddTrace");
  msgAddClient_ = messages().RegisterWindowMessageA("ZPLoggerWindowMsgAddClient");
  msgDeleteClient_ = messages().RegisterWindowMessageA("ZPLoggerWindowMsgDeleteClient");
}

ZPLoggerClient::~ZPLoggerClient() { ZPLoggerClient::CloseMapping(); }

void ZPLoggerClient::Init(std::u16string_view clientName, std::u16string_view logFile,
                          std::u16string_view backupFile) {
  clientName_ = clientName;
  logFile_ = logFile;
  backupFile_ = backupFile;
  clientId_ = kClientId;
  CloseMapping();
  mapping_ = memory_->CreateFileMappingA(platform::kReadWritePages | platform::kCommittedPages, 0, kBlockSize,
                                         mappingName(clientId_).data());
  if (mapping_ != 0) {
    view_ = static_cast<char*>(memory_->MapViewOfFile(mapping_, platform::kViewWrite, kBlockSize));
    if (view_ == nullptr) CloseMapping();
  }
  FindLogger();
  AddClient();
}

void ZPLoggerClient::SendTrace(std::u16string_view text, Long foreColor, Long backColor, Long level,
                               Boolean flag) {
  if (view_ == nullptr) return;
  FindLogger();
  if (loggerWindow_ == 0) return;
  if (!registered_) AddClient();
  char* cursor = view_;
  put(foreColor, cursor);
  put(backColor, cursor);
  put(static_cast<std::uint8_t>(flag ? 1 : 0), cursor);
  if (level < 0 || level > kHighestLevel) throw RuntimeError(RuntimeError::Overflow);
  put(static_cast<std::uint8_t>(level), cursor);
  WriteString(text.substr(0, kRoomForText), cursor);
  messages().SendMessageA(loggerWindow_, msgAddTrace_, 0, clientId_);
}

Boolean ZPLoggerClient::Connected() const { return loggerWindow_ != 0; }

void ZPLoggerClient::CloseMapping() {
  if (view_ != nullptr) {
    memory_->UnmapViewOfFile(view_);
    view_ = nullptr;
  }
  if (mapping_ != 0) {
    memory_->CloseHandle(mapping_);
    mapping_ = 0;
  }
}

void ZPLoggerClient::AddClient() {
  if (registered_ || loggerWindow_ == 0) return;
  if (view_ != nullptr) {
    char* cursor = view_;
    std::size_t room = kRoomForClient;
    for (const std::u16string_view text : {clientName_, logFile_, backupFile_}) {
      const std::u16string_view fitting = text.substr(0, room);
      WriteString(fitting, cursor);
      room -= fitting.size();
    }
    messages().SendMessageA(loggerWindow_, msgAddClient_, 0, clientId_);
  }
  registered_ = True;
}

void ZPLoggerClient::DeleteClient() {
  if (registered_ != True || loggerWindow_ == 0) return;
  messages().SendMessageA(loggerWindow_, msgDeleteClient_, 0, clientId_);
  registered_ = False;
}

void ZPLoggerClient::FindLogger() {
  if (loggerWindow_ != 0 && messages().GetWindowLongA(loggerWindow_, platform::kWindowInstance) == 0) {
    loggerWindow_ = 0;
    registered_ = False;
  }
  if (loggerWindow_ == 0) loggerWindow_ = FindLoggerWindow();
}

/// The length counts characters and not bytes, so of a text with two-byte ones only the front goes out.
void ZPLoggerClient::WriteString(std::u16string_view text, char*& cursor) {
  put(static_cast<std::uint32_t>(text.size()), cursor);
  if (text.empty()) return;
  std::string bytes = platform::toAnsi(text);
  bytes.resize(text.size(), ' ');
  std::memcpy(cursor, bytes.data(), bytes.size());
  cursor += bytes.size();
}

}  // namespace tessaly
